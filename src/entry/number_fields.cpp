#include <string>

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/numeric_text.h"
#include "entry/caller_objects.h"
#include "entry/key_filter.h"
#include "entry/whole_number.h"
#include "kwutils/clsDataEdtUtils.h"
#include "text/blanks.h"

namespace kw {
namespace {

constexpr char16_t kBackspace = 8;

// What a key adds to a number; 0 for every other key.
std::int32_t step_of(std::int16_t key_code) noexcept {
  constexpr std::int16_t kPageUp = 33;
  constexpr std::int16_t kPageDown = 34;
  constexpr std::int16_t kPlus = 107;
  constexpr std::int16_t kMinus = 109;
  switch (key_code) {
    case kPageUp:
      return 10;
    case kPageDown:
      return -10;
    case kPlus:
      return 1;
    case kMinus:
      return -1;
    default:
      return 0;
  }
}

// Whether the zero at `place` can go: a character that is no "." follows it.
bool is_idle_zero(std::u16string_view text, std::size_t place) noexcept {
  return text.size() > place + 1 && text[place] == u'0' && text[place + 1] != u'.';
}

// The first minus of a text that holds one at its front, without blanks around the text.
std::u16string with_minus_in_front(std::u16string_view text) {
  text = text::without_blanks_around(text);
  const std::size_t minus = text.find(u'-');
  std::u16string result = u"-";
  return result.append(text.substr(0, minus)).append(text.substr(minus + 1));
}

}  // namespace

void clsDataEdtUtils::CheckInteger(std::int16_t& KeyAscii, const std::int16_t& Positive,
                                   const String& tmp, const std::int16_t& MaxTextLength,
                                   const std::int16_t& SelText) const {
  KeyAscii = entry::filtered_key(
      KeyAscii, {entry::NumberKind::whole, Positive != 0, tmp, MaxTextLength, SelText});
}

void clsDataEdtUtils::CheckReal(std::int16_t& KeyAscii, const std::int16_t& Positive,
                                const String& tmp, const std::int16_t& MaxTextLength,
                                const std::int16_t& SelText) const {
  KeyAscii = entry::filtered_key(
      KeyAscii, {entry::NumberKind::real, Positive != 0, tmp, MaxTextLength, SelText});
}

String clsDataEdtUtils::CheckRealChange(std::u16string_view tmp) const {
  const bool negative = tmp.find(u'-') != std::u16string_view::npos;
  std::u16string text = negative ? with_minus_in_front(tmp) : std::u16string(tmp);
  const std::size_t first_digit = negative ? 1 : 0;
  if (is_idle_zero(text, first_digit)) text.erase(first_digit, 1);
  return String(text);
}

void clsDataEdtUtils::IncreDecreInteger(const Object& ctlName, const std::int16_t& KeyCode,
                                        const std::int16_t&) const {
  if (!entry::is_text_box(ctlName)) return;
  if (ctlName.get(u"Text").text().empty()) {
    ctlName.put(u"Text", u"1");
    return;
  }
  const std::int32_t value = to_int32(leading_number(ctlName.get(u"Text").text().view()).value);
  const std::int32_t step = step_of(KeyCode);
  if (step == 0) return;
  const std::int32_t stepped = entry::checked_int32(std::int64_t{value} + step);
  ctlName.put(u"Text", StringHelper.NumStr(static_cast<float>(stepped)));
}

std::int16_t clsDataEdtUtils::ValiText(const std::int16_t& KeyIn, const String& ValidateString,
                                       const Boolean& Editable) const {
  if (KeyIn < 0 || KeyIn > 0xFF) return 0;
  std::u16string allowed = upper(ValidateString);
  if (Editable.exactly_true()) allowed += kBackspace;
  const char16_t key = to_upper(decode(static_cast<unsigned char>(KeyIn)));
  return allowed.find(key) != std::u16string::npos ? KeyIn : std::int16_t{0};
}

}  // namespace kw
