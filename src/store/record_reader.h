// The records of an entity file: its lines without comments and empty ones, blanks trimmed.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "store/block_source.h"
#include "store/comment_keys.h"
#include "store/word_bits.h"

namespace kw::store {

namespace detail {

// The bytes with which no usual record begins: blanks, comment marks, what ParseList takes off a
// word, and NUL, with which no word may begin where words are numbers.
constexpr std::array<bool, 256> unusual_first_bytes() {
  std::array<bool, 256> bytes{};
  for (const char byte : {' ', '\t', '\xA0', ';', '*', '/', ',', '\'', '"', '\0'})
    bytes[static_cast<unsigned char>(byte)] = true;
  return bytes;
}

inline constexpr std::array<bool, 256> kUnusualFirstBytes = unusual_first_bytes();

}  // namespace detail

// Whether a line is a record as most are: no comment, eight characters or more, its first word
// plain, nothing to normalise but fewer than eight blanks in front of it. `first` is the place
// behind the blanks, `last` that behind the line.
[[gnu::always_inline]] inline bool is_usual_record(const char* first, const char* last,
                                                   std::size_t blanks,
                                                   bool has_odd_blanks) noexcept {
  return !has_odd_blanks && blanks < 8 && last - first >= 8 &&
         !detail::kUnusualFirstBytes[static_cast<unsigned char>(*first)] && last[-1] != ' ';
}

class RecordReader {
 public:
  // The file must outlive the reader.
  explicit RecordReader(platform::InputFile& file) : source_(file) {}

  // True when no byte follows. May read on: the record is then no longer valid, unless the answer
  // is true.
  bool at_end() { return source_.at_end(); }

  // The next record, valid until the next call. At the end of the file, when nothing but comments
  // and empty lines was left, the last of these: "" for an empty line, a comment as a record would
  // show it; "" too when nothing was left at all. Callers count on that last comment.
  std::string_view next() {
    return next([](std::string_view) {});
  }

  // As next(); each comment line that is passed over is first handed to on_comment(line), as it
  // stands in the file, without its end.
  template <class OnComment>
  std::string_view next(OnComment&& on_comment) {
    if (at_end()) return {};
    return record_from(source_.next(), on_comment);
  }

  // For a walk that looks at the lines itself (see BlockSource::lines()): the record that begins
  // with the line that was taken last, or that is read behind it.
  LineCursor& lines() noexcept { return source_.lines(); }
  std::string_view record_from(std::string_view line) {
    return record_from(line, [](std::string_view) {});
  }

  std::int64_t position() const noexcept { return source_.position(); }
  // Of a line that is valid.
  std::int64_t position_of(const char* line) const noexcept { return source_.position_of(line); }
  void seek(std::int64_t position) { source_.seek(position); }

  // For a search that looks ahead: the bytes that follow and are in memory, and whether the record
  // read last, which next() gave, is not what stands in the file.
  std::string_view buffered() const noexcept { return source_.buffered(); }
  bool changed_blanks() const noexcept { return source_.has_odd_blanks(); }

 private:
  template <class OnComment>
  std::string_view record_from(std::string_view line, OnComment&& on_comment) {
    const std::size_t blanks = leading_blanks(load_8(line.data()));
    const char* const first = line.data() + blanks;
    const char* const last = line.data() + line.size();
    if (is_usual_record(first, last, blanks, source_.has_odd_blanks()))
      return {first, static_cast<std::size_t>(last - first)};
    return any_record_from(line, on_comment);
  }
  template <class OnComment>
  std::string_view any_record_from(std::string_view line, OnComment& on_comment);
  template <class OnComment>
  std::string_view pass_comment(std::string_view line, std::string_view record,
                                OnComment& on_comment);
  std::string_view normalized(std::string_view line);

  BlockSource source_;
  std::string copy_;  // of a record that holds a tab or a no-break space
};

template <class OnComment>
[[gnu::noinline]] std::string_view RecordReader::any_record_from(std::string_view line,
                                                                 OnComment& on_comment) {
  for (;;) {
    std::string_view record = normalized(line);
    if (!record.empty()) {
      if (comment_kind(record) == CommentKind::none) return record;
      record = pass_comment(line, record, on_comment);
    }
    if (at_end()) return record;
    line = source_.next();
  }
}

// Passes over the comment that begins with `line`. Gives the last line of it.
template <class OnComment>
std::string_view RecordReader::pass_comment(std::string_view line, std::string_view record,
                                            OnComment& on_comment) {
  on_comment(line);
  if (comment_kind(record) != CommentKind::block) return record;
  while (record.find(kBlockEnd) == std::string_view::npos && !at_end()) {
    line = source_.next();
    record = normalized(line);
    if (!record.empty()) on_comment(line);
  }
  return record;
}

}  // namespace kw::store
