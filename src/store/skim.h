// Passing over the usual records (see record_reader.h) of many blocks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "store/comment_keys.h"
#include "store/line_cursor.h"
#include "store/record_bits.h"
#include "store/record_reader.h"
#include "store/type_word.h"
#include "store/word_bits.h"

namespace kw::store {

// Why and where it stopped.
struct SkimStop {
  enum class Why {
    no_more_lines,
    unusual_line,   // which may begin a record of the block, or between blocks
    opening_record  // a usual one, of a block that is wanted or must be looked at in another way
  };

  Why why = Why::no_more_lines;
  std::string_view line;
  std::string_view record;      // the opening one
  const char* begin = nullptr;  // of the lines in front of it that are no records, or of its own
};

// Whether the line, from its first character that is no blank on, is a comment by itself or empty.
inline bool is_no_record(const char* first, const char* last) noexcept {
  if (first >= last) return true;
  return comment_kind({first, static_cast<std::size_t>(last - first)}) == CommentKind::line;
}

// Takes lines, and the block that they belong to, up to where it stops. `words`: see record_bits.h.
// bool is_unwanted(behind_word): see BlockWalk::next_but.
//
// The types, and how many records a block has, cannot be foreseen, so the loop does not branch on
// them: a record inside a block and one that opens a block differ in what is selected. It is a
// function of its own so that all that it needs finds room in registers.
template <class IsUnwanted>
[[gnu::noinline]] SkimStop skim(LineCursor& lines_at, BlockState& block_at, const TypeBits& type,
                                const WordMasks& words, const IsUnwanted& is_unwanted) {
  LineCursor lines = lines_at;
  BlockState block = block_at;
  SkimStop stop;
  const char* begin = lines.begin();
  while (!lines.empty()) {
    const char* const line = lines.begin();
    const char* const end = lines.next_end();
    const LineStart start(line);
    const char* const first = line + start.blanks;
    const char* const last = end - static_cast<int>(end[-1] == '\r');
    if (!is_usual_record(first, last, start.blanks, lines.odd())) [[unlikely]] {
      // The last line of a file is handed out whatever it is.
      const bool may_be_passed = !lines.odd() && !lines.empty();
      if (may_be_passed && is_no_record(first, last)) continue;
      stop = {SkimStop::Why::unusual_line, LineCursor::line_between(line, end), {}, begin};
      break;
    }
    const std::uint64_t first_8 = load_8(first);
    const std::uint64_t word = first_8 & words[start.word_size];
    const bool opens = all(type.open(first_8), !is_unwanted(first + type.size_with_blank));
    const std::uint64_t unseen = all_bits_if(!any(opens, !all_ascii(word)));
    if (!block.take(word & unseen, start.word_size, load_8(last - 8))) {
      const std::string_view record(first, static_cast<std::size_t>(last - first));
      stop = {SkimStop::Why::opening_record, LineCursor::line_between(line, end), record, begin};
      break;
    }
    begin = lines.begin();
  }
  lines_at = lines;
  block_at = block;
  return stop;
}

}  // namespace kw::store
