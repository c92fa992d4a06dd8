#include <optional>
#include <string>

#include "base/case_map.h"
#include "base/numeric_text.h"
#include "base/unicode.h"
#include "kwutils/clsIni.h"
#include "kwutils/error.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/profile.h"

namespace kw {
namespace {

constexpr std::u16string_view kNoValue = u"__NO_VALUE__";

void show(const String& message) { platform::show_message(message, MessageButtons::ok); }

// The value asked for, as the messages name it.
struct Place {
  const String& section;
  const String& key;
  const String& file;

  String text() const {
    return String::concat(u"[", section, u"/", key, u"] in ini file '", file, u"'");
  }
  void show_missing() const { show(String::concat(u"Missing ", text())); }
  void show_malformed(std::u16string_view kind) const {
    show(String::concat(text(), u" is not a ", kind, u" value"));
  }
};

// The value as a number that `convert` narrows to its type; empty, after a message, for none.
template <class Number>
Variant number_of(std::u16string_view value, const Place& place, Number (*convert)(double)) {
  const auto number = parse_number(value);
  if (number) return Variant(convert(*number));
  place.show_malformed(u"numerical");
  return Variant();
}

std::optional<bool> truth_of(std::u16string_view value) {
  if (const auto number = parse_number(value)) return to_double(*number) != 0;
  const char16_t first = value.empty() ? u'\0' : to_upper(value.front());
  if (first == u'T' || first == u'Y') return true;
  if (first == u'F' || first == u'N') return false;
  return std::nullopt;
}

Variant boolean_of(std::u16string_view value, const Place& place) {
  if (const auto truth = truth_of(value)) return Variant(Boolean(*truth));
  place.show_malformed(u"boolean");
  return Variant(u"NOTHING FOUND");
}

bool means_missing(ErrorNumber number) {
  return number == ErrorNumber::bad_file_name_or_number || number == ErrorNumber::file_not_found ||
         number == ErrorNumber::path_not_found;
}

}  // namespace

bool clsIni::IniFileExists(const String& name) try {
  if (name.view().find_first_not_of(u' ') == std::u16string_view::npos) return false;
  platform::files().check_attributes(platform::profile::stored_name(name));
  return true;
} catch (const Error& error) {
  if (!means_missing(error.number)) {
    // Callers know the message with the name of an older procedure, and with its spelling.
    show(String::concat(u"Error ", number_text(static_cast<std::int32_t>(error.number)),
                        u" occured in FileNameExists: ", from_utf8(error.text())));
  }
  return false;
}

Variant clsIni::GetIniAndCheck(const String& sectionName, const String& keyName,
                               const String& keyType, const String& iniFileName,
                               const Variant& vntDefaultValue) const {
  if (!IniFileExists(iniFileName)) return Variant();
  const Place place{sectionName, keyName, iniFileName};
  const auto read = [&] { return GetIni(sectionName, keyName, kNoValue, iniFileName); };

  const String value = read();
  if (value.view() == kNoValue) {
    if (!vntDefaultValue.is_missing()) return vntDefaultValue.copy();
    place.show_missing();
  }
  const std::u16string type = upper(keyType);
  if (type == u"STRING") return Variant(value.copy());
  if (type == u"BOOLEAN" || type == u"BOOL") return boolean_of(value, place);
  if (type == u"INTEGER") return number_of(value, place, &to_int16);
  if (type == u"LONG") {
    // Long values are read a second time: callers without a default see "Missing" twice.
    const std::u16string again = upper(read());
    if (again != kNoValue) return number_of(again, place, &to_int32);
    place.show_missing();
    return Variant();
  }
  if (type == u"SINGLE") return number_of(value, place, &to_single);
  if (type == u"DOUBLE") return number_of(value, place, &to_double);
  show(String::concat(u"Unknown key '", keyType, u"' in 'GetIniAndCheck'"));
  return Variant();
}

}  // namespace kw
