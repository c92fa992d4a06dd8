#include "kwutils/clsIni.h"

#include <string>

#include "base/code_page.h"
#include "base/numeric_text.h"
#include "platform/profile.h"

namespace kw {
namespace {

namespace profile = platform::profile;

// What callers get was always read through a buffer of this size.
constexpr std::size_t kCapacity = 1024;

// The profile functions look for a bare name in the system's directory, callers in the current one.
std::string completed(std::u16string_view file) {
  const bool bare = file.find_first_of(u"\\:") == std::u16string_view::npos;
  return (bare ? ".\\" : "") + narrow(file);
}

}  // namespace

String clsIni::GetIni(std::u16string_view Section, std::u16string_view Key,
                      std::u16string_view default_, std::u16string_view File) const {
  const std::string value = profile::get_string(narrow(Section), narrow(Key), narrow(default_),
                                                kCapacity, completed(File));
  return value.empty() ? String(default_) : String(widen(value));
}

Variant clsIni::GetInt(const String& Section, const String& Key, const std::int16_t& default_,
                       const String& File) const {
  const std::int16_t number =
      to_int16(profile::get_int(narrow(Section), narrow(Key), default_, narrow(File)));
  return Variant(number != 0 ? number : default_);
}

std::int16_t clsIni::WriteIni(std::u16string_view Section, std::u16string_view Key,
                              std::u16string_view entry, std::u16string_view File) const {
  return profile::write_string(narrow(Section), narrow(Key), narrow(entry), completed(File));
}

std::int16_t clsIni::RemoveIniEntry(std::u16string_view Section, std::u16string_view Key,
                                    std::u16string_view File) const {
  profile::write_string(narrow(Section), narrow(Key), std::nullopt, completed(File));
  return 0;
}

}  // namespace kw
