// The records of an entity file: its lines without comments and empty ones, blanks trimmed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "store/block_source.h"
#include "store/comment_keys.h"

namespace kw::store {

// Whether the byte is a blank, or shown as one: a tab or a no-break space.
constexpr bool is_line_blank(char byte) noexcept {
  return byte == ' ' || byte == '\t' || byte == '\xA0';
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
  std::string_view next(OnComment&& on_comment);

  std::int64_t position() const noexcept { return source_.position(); }
  void seek(std::int64_t position) { source_.seek(position); }

 private:
  std::string_view normalized(std::string_view line) {
    const std::string_view trimmed = trim_line(line);
    return source_.maybe_odd_blanks() ? with_plain_blanks(trimmed) : trimmed;
  }
  static std::string_view trim_line(std::string_view line) noexcept;
  std::string_view with_plain_blanks(std::string_view line);
  template <class OnComment>
  std::string_view pass_comment(std::string_view line, std::string_view record,
                                OnComment& on_comment);

  BlockSource source_;
  std::string copy_;  // of a record that holds a tab or a no-break space
};

inline std::string_view RecordReader::trim_line(std::string_view line) noexcept {
  const char* first = line.data();
  const char* last = first + line.size();
  while (first != last && is_line_blank(*first)) ++first;
  while (first != last && is_line_blank(last[-1])) --last;
  return {first, static_cast<std::size_t>(last - first)};
}

template <class OnComment>
std::string_view RecordReader::next(OnComment&& on_comment) {
  std::string_view record;
  while (!at_end()) {
    const std::string_view line = source_.next();
    record = normalized(line);
    if (record.empty()) continue;
    if (!may_begin_comment(record.front()) || comment_kind(record) == CommentKind::none)
      return record;
    record = pass_comment(line, record, on_comment);
  }
  return record;
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
