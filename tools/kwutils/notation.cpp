#include "tool/notation.h"

#include <algorithm>
#include <cstdio>

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/unicode.h"
#include "parse/text_view.h"
#include "store/comment_keys.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

bool is_white(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n' || unit == 0xA0;
}

bool is_quote(char16_t unit) { return unit == u'\'' || unit == u'"'; }

bool is_lead(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_trail(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// One character of the text and its number, "'ł' (U+0142)".
std::string character_text(View text, std::size_t at) {
  const bool pair = is_lead(text[at]) && at + 1 < text.size() && is_trail(text[at + 1]);
  unsigned number = text[at];
  if (pair) number = 0x10000 + ((number - 0xD800) << 10) + (text[at + 1] - 0xDC00u);
  char digits[12];
  std::snprintf(digits, sizeof digits, "U+%04X", number);
  return "'" + to_utf8(text.substr(at, pair ? 2 : 1)) + "' (" + digits + ")";
}

std::string word_fault(View word) {
  if (word.empty()) return "is empty";
  if (std::any_of(word.begin(), word.end(), is_white)) return "holds a blank";
  if (std::any_of(word.begin(), word.end(), is_quote)) return "holds a quote";
  if (word.front() == u',') return "begins with a comma";
  const std::string lacking = page_fault(word);
  return lacking.empty() ? "" : "cannot be stored: " + lacking;
}

bool begins_comment(View word) {
  return store::comment_kind(narrow(word)) != store::CommentKind::none;
}

}  // namespace

std::string page_fault(View text) {
  const auto lacking =
      std::find_if(text.begin(), text.end(), [](char16_t c) { return !encode(c); });
  if (lacking == text.end()) return "";
  return character_text(text, static_cast<std::size_t>(lacking - text.begin())) +
         " is outside code page 1252";
}

std::string type_fault(View type) {
  const std::u16string opener = upper(parse::trim(type));
  std::string fault = word_fault(opener);
  if (fault.empty()) fault = word_fault(lower(opener));
  if (!fault.empty()) return fault;
  if (begins_comment(opener)) return "begins like a comment";
  if (parse::contains(View(opener), u"TBLE")) return "holds TBLE, which opens a table";
  return "";
}

std::string keyword_fault(View keyword) {
  std::string fault = word_fault(keyword);
  if (!fault.empty()) return fault;
  for (const View marker : {View(u"TBLE"), View(u"tble")})
    if (parse::contains(keyword, marker))
      return "holds " + to_utf8(marker) + ", the mark of a table";
  return "";
}

std::string value_fault(View value) {
  for (const char16_t unit : value) {
    if (unit == u'\t') return "a tab is read back as a blank";
    if (unit == 0xA0) return "a no-break space is read back as a blank";
    if (unit == u'\r' || unit == u'\n') return "a line break cannot stand in a value";
  }
  if (value != parse::trim(value)) return "blanks at its ends are not read back";
  return page_fault(value);
}

std::string identifier_fault(View identifier) {
  if (identifier.empty()) return "it is missing";
  if (parse::contains(identifier, u"'")) return "an apostrophe in it cannot be looked up";
  return value_fault(identifier);
}

std::u16string keyword_of_column(View name) {
  std::u16string keyword;
  bool gap = false;
  for (const char16_t unit : name) {
    if (!is_white(unit)) {
      if (gap && !keyword.empty()) keyword += u'_';
      keyword += unit;
    }
    gap = is_white(unit);
  }
  return keyword;
}

}  // namespace kw::tool
