// How the text of an entity is gathered from the records of its block. The four styles differ in
// small things that callers count on:
//
//   whole              every record
//   without tables     nothing from "TBLE" to the first record with "tble"; later ones are kept
//   up to its table    the same, but once "TBLE" was met only records with "tble" are kept
//   rows               see table_rows.h
//
// All of them join records by CR LF, and cut the closing word off the last one. None looks for
// "TBLE" in the closing record: a table that opens there stays.
#pragma once

#include <string>
#include <string_view>

#include "base/find_text.h"
#include "kwutils/error.h"
#include "store/closing_word.h"
#include "store/record_reader.h"
#include "store/table_words.h"

namespace kw::store {

inline constexpr std::string_view kLineEnd = "\r\n";

// The text of one entity. One that stands in a single record is shown where it was read.
class EntityText {
 public:
  void clear() noexcept {
    joined_.clear();
    text_ = {};
  }
  void add_line(std::string_view line) {
    joined_.append(line).append(kLineEnd);
    text_ = joined_;
  }
  void add_last(std::string_view line) {
    if (joined_.empty()) {
      text_ = line;
    } else {
      text_ = joined_.append(line);
    }
  }
  // Valid until the next record is read, or until something is added.
  std::string_view view() const noexcept { return text_; }

 private:
  std::string joined_;
  std::string_view text_;
};

// Hands the records of a block to keeper.line(record) and, when one of them closes the block,
// keeper.last(record). `record`: the first of them. An empty one stands for the next record: the
// opening word was alone on its line. Stops at the end of the file.
template <class Keeper>
void gather(RecordReader& records, std::string_view record, const ClosingWord& closing,
            Keeper& keeper) {
  if (record.empty()) record = records.next();
  while (!closing.closes(record)) {
    keeper.line(record);
    if (records.at_end()) return;
    record = records.next();
  }
  keeper.last(record);
}

class WholeText {
 public:
  WholeText(EntityText& text, const ClosingWord& closing) noexcept
      : text_(text), closing_(closing) {}

  void line(std::string_view record) { text_.add_line(record); }
  void last(std::string_view record) { text_.add_last(closing_.without(record)); }

 private:
  EntityText& text_;
  const ClosingWord& closing_;
};

enum class AfterTable { keep, drop };

template <AfterTable after_table>
class TextWithoutTables {
 public:
  TextWithoutTables(EntityText& text, const ClosingWord& closing) noexcept
      : text_(text), closing_(closing) {}

  void line(std::string_view record) {
    const std::size_t opener = find_text(record, kTableOpener);
    if (opener != kNotFound) {
      text_.add_line(record.substr(0, opener));
      in_table_ = true;
    } else if (in_table_) {
      line_in_table(record);
    } else {
      text_.add_line(record);
    }
  }

  void last(std::string_view record) {
    if (in_table_) {
      const std::size_t closer = find_text(record, kTableCloser);
      if (closer != kNotFound) record.remove_prefix(closer + kTableCloser.size());
      if (record.size() < closing_.size()) throw Error(ErrorNumber::invalid_argument);
    }
    text_.add_last(closing_.without(record));
  }

 private:
  void line_in_table(std::string_view record) {
    const std::size_t closer = find_text(record, kTableCloser);
    if (closer == kNotFound) return;
    text_.add_line(record.substr(closer + kTableCloser.size()));
    if (after_table == AfterTable::keep) in_table_ = false;
  }

  EntityText& text_;
  const ClosingWord& closing_;
  bool in_table_ = false;
};

using TextWithoutTable = TextWithoutTables<AfterTable::keep>;
using TextUpToTable = TextWithoutTables<AfterTable::drop>;

}  // namespace kw::store
