// The words of a record with their places.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kw::tool {

struct SourceWord {
  std::string_view text;  // without quotes
  std::size_t begin;      // in the record, from 0: of the quote, where there is one
  std::size_t end;        // behind it, the closing quote included
  char quote;             // 0 for none
  bool closed;            // false: its quote is never closed
};

std::vector<SourceWord> cut_words(std::string_view record);

}  // namespace kw::tool
