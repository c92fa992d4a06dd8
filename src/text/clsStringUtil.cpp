#include "kwutils/clsStringUtil.h"

#include <algorithm>
#include <string>

#include "base/find_text.h"
#include "base/numeric_text.h"
#include "text/positions16.h"
#include "text/replace_until_gone.h"

namespace kw {

String clsStringUtil::RemoveSpaces(std::u16string_view line) const {
  std::u16string kept;
  kept.reserve(line.size());
  for (std::size_t start = 0;;) {
    const std::size_t blank = find_unit(line, u' ', start);
    kept.append(line.substr(start, blank - start));
    if (blank == kNotFound) return String(kept);
    text::check_position16(kept.size());
    start = blank + 1;
  }
}

String clsStringUtil::ReplaceAllOccurs(std::u16string_view toSearch, std::u16string_view toReplace,
                                       std::u16string_view replaceBy) const {
  if (toReplace.empty() || find_text(toSearch, toReplace) == kNotFound) return String(toSearch);
  return String(text::replace_until_gone(toSearch, toReplace, replaceBy));
}

std::int32_t clsStringUtil::OutStr(const String& beingSearched, const String& sought) const {
  const String reversed = InvertString(beingSearched);
  const std::size_t place = find_text(reversed.view(), InvertString(sought).view());
  return place == kNotFound ? -1 : static_cast<std::int32_t>(reversed.size() - place);
}

String clsStringUtil::InvertString(const String& s) const {
  String result = String::uninitialized(s.size());
  std::reverse_copy(s.view().begin(), s.view().end(), result.data());
  return result;
}

String clsStringUtil::StrNoNull(const String& strInput) const {
  const std::u16string_view text = strInput;
  const std::size_t end = find_unit(text, u'\0');
  if (end != kNotFound) text::check_position16(end);
  return String(text.substr(0, end));
}

String clsStringUtil::ReplaceTabCharacterswithBlank(std::u16string_view strng) const {
  const std::size_t last_tab = strng.rfind(u'\t');
  if (last_tab != std::u16string_view::npos) text::check_position16(last_tab);
  String result(strng);
  std::replace(result.data(), result.data() + result.size(), u'\t', u' ');
  return result;
}

String clsStringUtil::NumStr(float Value) const { return String(u" " + number_text(Value)); }

}  // namespace kw
