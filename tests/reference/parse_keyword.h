// The value after a keyword, step by step.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "reference/basic_text.h"
#include "reference/parse_list.h"
#include "reference/parse_record.h"
#include "reference/parse_token.h"

namespace kw::reference {

template <class Char>
bool is_token_at(const Text<Char>& text, const Text<Char>& token, std::size_t position) {
  if (position - 1 + token.size() > text.size()) return false;
  Text<Char> list = mid(text, position);
  return parse_list(list, text_of<Char>(" ")) == mid(text, position, token.size());
}

// The text after the keyword, or nothing.
template <class Char>
std::optional<Text<Char>> value_text(Text<Char> copy, const Text<Char>& token) {
  const Text<Char> quote = text_of<Char>("'");
  std::size_t s = 0;
  for (;;) {
    if (copy.empty()) return std::nullopt;
    Text<Char> line = trim(parse_record(copy));
    bool matched = false;
    while (!matched) {
      s = in_str(s + 1, line, token);
      if (s == 0) break;
      if (s == 1 || mid(line, s - 1, 1) == text_of<Char>(" "))
        matched = is_token_at(line, token, s);
    }
    if (!matched) return std::nullopt;
    const auto before = static_cast<std::ptrdiff_t>(s - 1);
    const auto quotes = std::count(line.begin(), line.begin() + before, Char('\''));
    if (quotes % 2 == 0) return ltrim(mid(line, s + token.size()));
    line = mid(line, s);
    if (in_str(line, quote) != 0) line = mid(line, in_str(line, quote) + 1);
    s = 0;
    copy = line + text_of<Char>("\r\n") + copy;
  }
}

// The values after the keyword: element i for i from 1, element 0 empty; all of them empty without
// the keyword. With a count below 1 one value alone.
template <class Char>
std::vector<Text<Char>> values(const Text<Char>& buf, const Text<Char>& token, int count) {
  const std::optional<Text<Char>> text = value_text(buf, token);
  std::vector<Text<Char>> found(static_cast<std::size_t>(std::max(count, 1)) + 1);
  for (std::size_t i = 1; text && i < found.size(); ++i) {
    found[i] = parse_token(*text, static_cast<int>(i));
  }
  return found;
}

}  // namespace kw::reference
