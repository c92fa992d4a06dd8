// What the store's steps do with texts of a file, one byte a character.
#pragma once

#include <cstddef>
#include <string>

#include "base/case_map.h"
#include "base/code_page.h"
#include "base/compare_text.h"
#include "kwutils/error.h"
#include "reference/basic_text.h"
#include "reference/parse_list.h"

namespace kw::reference {

inline std::string upper_case(const std::string& text) { return narrow(upper(widen(text))); }
inline std::string lower_case(const std::string& text) { return narrow(lower(widen(text))); }
inline bool same_text(const std::string& left, const std::string& right) {
  return equal_text(widen(left), widen(right));
}

// The last `length` characters, or all.
inline std::string right(const std::string& text, std::size_t length) {
  return length >= text.size() ? text : text.substr(text.size() - length);
}

// The text without its last `length` characters; error 5 when it has fewer.
inline std::string without_last(const std::string& text, std::size_t length) {
  if (length > text.size()) throw Error(ErrorNumber::invalid_argument);
  return text.substr(0, text.size() - length);
}

inline bool holds(const std::string& text, const std::string& sought) {
  return in_str(text, sought) != 0;
}

inline std::string take_word(std::string& record) { return parse_list<char>(record, " "); }

}  // namespace kw::reference
