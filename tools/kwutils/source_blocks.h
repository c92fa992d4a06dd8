// The blocks of an entity file.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "tool/source_records.h"

namespace kw::tool {

struct SourceBlock {
  std::string word;         // that opens it
  std::string closing;      // that closes it
  std::size_t rest_column;  // in the first record, from 0: where the text behind the word begins
  std::span<const SourceRecord> records;
  bool closed;

  // A record without the opening word.
  std::string_view text(std::size_t record) const {
    const std::string_view whole = records[record].text;
    return record == 0 ? whole.substr(rest_column) : whole;
  }
  // The record whose text is the first line of the entity, or the number of records.
  std::size_t first_line() const { return text(0).empty() ? 1 : 0; }
  // Where a character of a record's text stands in the file.
  std::size_t column(std::size_t record, std::size_t at) const {
    return records[record].column + (record == 0 ? rest_column : 0) + at;
  }
};

// Cuts the records as a reader does that passes over everything. Adds findings about blocks: those
// that never close or stand inside another one of their type, types that are not in upper case,
// records that close by the tail of a longer word, first words of six letters that some readers
// take for a header.
std::vector<SourceBlock> cut_blocks(const SourceText& source, Findings& findings);

}  // namespace kw::tool
