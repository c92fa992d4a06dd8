#include "tool/transliterate.h"

#include <algorithm>
#include <iterator>

#include "base/code_page.h"
#include "parse/text_view.h"
#include "tool/transliteration_table.h"

namespace kw::tool {
namespace {

bool is_white(char16_t unit) {
  return unit == u'\t' || unit == u'\r' || unit == u'\n' || unit == 0xA0;
}

// The letter that `letter` and the mark behind it make together, or 0.
char16_t composed(char16_t letter, char16_t mark) {
  const auto found = std::find_if(
      std::begin(kCompositions), std::end(kCompositions),
      [=](const Composition& pair) { return pair.letter == letter && pair.mark == mark; });
  return found == std::end(kCompositions) ? char16_t{0} : found->composed;
}

const Spelling* spelling_of(char16_t unit) {
  const auto found = std::lower_bound(
      std::begin(kSpellings), std::end(kSpellings), unit,
      [](const Spelling& spelling, char16_t sought) { return spelling.unit < sought; });
  return found != std::end(kSpellings) && found->unit == unit ? found : nullptr;
}

}  // namespace

std::optional<std::u16string> nearest_spelling(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t next = i + 1 < text.size() ? text[i + 1] : char16_t{0};
    if (is_white(text[i])) {
      if (text[i] != u'\r' || next != u'\n') result += u' ';
    } else if (!encode(text[i])) {
      const Spelling* spelling = spelling_of(text[i]);
      if (spelling == nullptr) return std::nullopt;
      result += spelling->text;
    } else if (const char16_t letter = composed(text[i], next)) {
      result += letter;
      ++i;
    } else {
      result += text[i];
    }
  }
  result = parse::trim(std::u16string_view(result));
  if (result.empty()) return std::nullopt;
  return result;
}

std::u16string without_apostrophes(std::u16string text) {
  std::replace(text.begin(), text.end(), u'\'', u'\u2019');
  return text;
}

}  // namespace kw::tool
