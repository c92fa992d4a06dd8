// The first word of a record.
#pragma once

#include <string_view>

#include "parse/item.h"

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
  const std::string_view word = parse::take_item(record).text;
  return {word, record};
}

}  // namespace kw::store
