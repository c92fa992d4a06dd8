// The lines of one slice of a file's buffer, whose ends are known.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kw::store {

// A cursor is a handful of pointers: a loop over many lines works on a copy, which then lives in
// registers, and puts it back before anybody else looks.
class LineCursor {
 public:
  LineCursor() = default;

  // Behind every offset.
  static constexpr std::uint32_t kNoOffset = UINT32_MAX;

  // The next line begins at `begin`. The ends and the odd blanks (see line_ends.h) are offsets in
  // the slice; kNoOffset ends the odd blanks. `odd`: the next line holds odd blanks in front of the
  // slice.
  LineCursor(const char* begin, const char* slice, const std::uint32_t* ends, std::size_t count,
             const std::uint32_t* odd_blanks, bool odd) noexcept
      : begin_(begin),
        slice_(slice),
        next_end_(ends),
        last_end_(ends + count),
        next_odd_blank_(odd_blanks),
        odd_offset_(odd ? 0 : *odd_blanks) {}

  bool empty() const noexcept { return next_end_ == last_end_; }
  // Where the next line begins.
  const char* begin() const noexcept { return begin_; }
  // Whether there are odd blanks behind the last line that ends in the slice.
  bool odd_behind() const noexcept { return odd_offset_ != kNoOffset; }

  // The unfinished line of a slice without further ends, at another place.
  void move_to(const char* begin) noexcept { begin_ = begin; }

  // The next line, without its end; not when empty.
  std::string_view next() noexcept {
    const char* const first = begin_;
    return line_between(first, next_end());
  }
  // The same for a loop that looks at the line's end itself: its last byte, LF or CR, or the byte
  // behind it at the end of the file. The line began at begin().
  const char* next_end() noexcept {
    const std::uint32_t end = *next_end_++;
    odd_ = odd_offset_ <= end;  // equal only where the odd blanks stand in front of the slice
    if (odd_) pass_odd_blanks(end);
    begin_ = slice_ + end + 1;
    return slice_ + end;
  }
  static std::string_view line_between(const char* first, const char* end) noexcept {
    end -= static_cast<unsigned>(end != first) & static_cast<unsigned>(end[-1] == '\r');
    return {first, static_cast<std::size_t>(end - first)};
  }
  // Whether the line given last holds odd blanks.
  bool odd() const noexcept { return odd_; }

 private:
  void pass_odd_blanks(std::uint32_t end) noexcept {
    while (*next_odd_blank_ < end) ++next_odd_blank_;
    odd_offset_ = *next_odd_blank_;
  }

  const char* begin_ = nullptr;
  const char* slice_ = nullptr;
  const std::uint32_t* next_end_ = nullptr;
  const std::uint32_t* last_end_ = nullptr;
  const std::uint32_t* next_odd_blank_ = nullptr;
  std::uint32_t odd_offset_ = kNoOffset;
  bool odd_ = false;
};

}  // namespace kw::store
