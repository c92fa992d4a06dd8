// Items of a list and fields of a text, step by step.
#pragma once

#include <vector>

#include "reference/basic_text.h"

namespace kw::reference {

template <class Char>
Text<Char> list_separator(const Text<Char>& given) {
  if (given.empty()) return text_of<Char>(" ");
  if (ltrim(given).empty()) return given;
  return ltrim(given);
}

// Skips blanks, one comma, an opening quote; gives the quote, or "".
template <class Char>
Text<Char> open_item(Text<Char>& buf) {
  buf = ltrim(buf);
  if (left(buf, 1) == text_of<Char>(",")) buf = mid(buf, 2);
  const Text<Char> first = left(buf, 1);
  if (first != text_of<Char>("'") && first != text_of<Char>("\"")) return {};
  buf = mid(buf, 2);
  return first;
}

template <class Char>
Text<Char> parse_list(Text<Char>& buf, const Text<Char>& given, bool keep_quotes = false) {
  const Text<Char> sep = list_separator(given);
  const Text<Char> quote = open_item(buf);
  const std::size_t p = in_str<Char>(buf + sep, quote.empty() ? sep : quote);
  if (p == 0) return {};
  const Text<Char> item = trim(left(buf, p - 1));
  buf = ltrim(mid(buf, p + sep.size()));
  return keep_quotes ? quote + item + quote : item;
}

template <class Char>
std::vector<Text<Char>> parse_fields(Text<Char> buf, const Text<Char>& separator) {
  std::vector<Text<Char>> fields;
  while (!buf.empty()) fields.push_back(parse_list(buf, separator));
  return fields;
}

// The `ix`-th field (from 1) of `buf` split at `sep`.
template <class Char>
Text<Char> parse_string(const Text<Char>& buf, const Text<Char>& sep, int ix) {
  const Text<Char> search = buf + sep;
  std::size_t start = 0;
  std::size_t end = 1 - sep.size();
  for (int i = 1; i <= ix; ++i) {
    start = end + sep.size();
    end = in_str(start, search, sep);
    if (end == 0) return {};
  }
  return mid(buf, start, end - start);
}

}  // namespace kw::reference
