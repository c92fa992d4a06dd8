// The first word of a record.
#pragma once

#include <string_view>

#include "parse/item.h"
#include "store/word_bits.h"

namespace kw::store {

struct RecordWord {
  std::string_view word;  // without quotes
  std::string_view rest;  // what follows, without leading blanks
};

// Whether the first word is what stands before the first blank: no comma is dropped, no quote
// opens.
constexpr bool begins_plainly(std::string_view record) noexcept {
  return !record.empty() && record.front() != ',' && record.front() != '\'' &&
         record.front() != '"';
}

// Takes the first word off, as ParseList does.
inline RecordWord take_first_word(std::string_view record) noexcept {
  if (record.size() >= 8 && begins_plainly(record)) {
    const std::uint64_t blanks = blank_marks(load_8(record.data()));
    const std::size_t end = first_byte_set(blanks);
    if (blanks != 0) return {record.substr(0, end), parse::trim_left(record.substr(end + 1))};
  }
  const std::string_view word = parse::take_item(record).text;
  return {word, record};
}

}  // namespace kw::store
