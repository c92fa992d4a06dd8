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

// What a byte means at the beginning of a line. List marks are those that ParseList takes off; a
// NUL counts as one, because a word may not begin with it where words are numbers.
enum class LineByte : unsigned char { ordinary, list_mark, blank, comment_mark };

// Whether a record can begin with that.
constexpr bool begins_record(LineByte byte) noexcept { return byte <= LineByte::list_mark; }

namespace detail {

constexpr std::array<LineByte, 256> line_bytes() {
  std::array<LineByte, 256> bytes{};
  for (const char blank : {' ', '\t', '\xA0'})
    bytes[static_cast<unsigned char>(blank)] = LineByte::blank;
  for (const char mark : {';', '*', '/'})
    bytes[static_cast<unsigned char>(mark)] = LineByte::comment_mark;
  for (const char mark : {',', '\'', '"', '\0'})
    bytes[static_cast<unsigned char>(mark)] = LineByte::list_mark;
  return bytes;
}

inline constexpr std::array<LineByte, 256> kLineBytes = line_bytes();

}  // namespace detail

constexpr LineByte line_byte(char byte) noexcept {
  return detail::kLineBytes[static_cast<unsigned char>(byte)];
}

// Whether a line is a record as most are: no comment, eight characters or more, nothing to
// normalise but a few blanks in front of it. `record` is then that record, else nothing of use.
// BlockSource::kPadding bytes around the line must be readable. The innermost step of every scan:
// one branch, for what is nearly always true.
[[gnu::always_inline]] inline bool is_usual_record(std::string_view line, bool has_odd_blanks,
                                                   std::string_view& record) noexcept {
  const std::size_t blanks = leading_blanks(load_8(line.data()));
  const char* const first = line.data() + blanks;
  record = {first, line.size() - blanks};
  return all(line.size() >= blanks + 8, !has_odd_blanks, begins_record(line_byte(*first)),
             line.data()[static_cast<std::ptrdiff_t>(line.size()) - 1] != ' ');
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
  std::int64_t position_of(std::string_view line) const noexcept {
    return source_.position_of(line.data());
  }
  void seek(std::int64_t position) { source_.seek(position); }

  // For a search that looks ahead: the bytes that follow and are in memory, and whether the record
  // read last, which next() gave, is not what stands in the file.
  std::string_view buffered() const noexcept { return source_.buffered(); }
  bool changed_blanks() const noexcept { return source_.has_odd_blanks(); }

 private:
  template <class OnComment>
  std::string_view record_from(std::string_view line, OnComment&& on_comment) {
    std::string_view record;
    if (is_usual_record(line, source_.has_odd_blanks(), record)) return record;
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
