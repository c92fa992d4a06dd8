// The lines of a file, as views into the blocks that it is read in.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "platform/files.h"
#include "store/line_cursor.h"
#include "store/line_ends.h"

namespace kw::store {

// A line ends at CR LF, at a lone CR and at a lone LF; the last one needs no end. No line is too
// long: the buffer holds one block, or the longest line where that is longer.
class BlockSource {
 public:
  // So many bytes in front of a line and behind it can be read, whatever they are.
  static constexpr std::size_t kPadding = kFinderPadding;

  // The file must outlive the source, and is nobody else's meanwhile.
  explicit BlockSource(platform::InputFile& file);

  // True when no byte follows the last line. May read on: the line is then no longer valid, unless
  // the answer is true.
  bool at_end() { return lines_.empty() && !find_more(); }

  // The next line, without its end; only where at_end() is false. It is valid until the next call
  // of at_end(), next() or seek().
  std::string_view next() { return lines_.next(); }

  // Whether the line that next() gave last holds a tab or a no-break space.
  bool has_odd_blanks() const noexcept { return lines_.odd(); }

  // The lines at hand, which next() would give, for a loop of one's own: it takes a copy and puts
  // it back before anything else is asked of the source.
  LineCursor& lines() noexcept { return lines_; }

  // What is in the buffer from the next line on. It may end inside a line.
  std::string_view buffered() const noexcept {
    return {used(), static_cast<std::size_t>(data() + filled_ - used())};
  }

  // How many bytes of the file stand in front of the next line.
  std::int64_t position() const noexcept { return buffer_position_ + offset(used()); }
  // The same for a line that is valid.
  std::int64_t position_of(const char* line) const noexcept {
    return buffer_position_ + offset(line);
  }
  // The next line begins `position` bytes after the file's first byte, wherever that is. Error 63
  // as InputFile::seek; the source then stands where it stood.
  void seek(std::int64_t position);

 private:
  struct Free {
    void operator()(char* memory) const noexcept { std::free(memory); }
  };

  char* data() const noexcept { return memory_.get() + kPadding; }
  // The end of what was handed out; the last line of a file may have no end.
  const char* used() const noexcept {
    return std::min<const char*>(lines_.begin(), data() + filled_);
  }
  std::ptrdiff_t offset(const char* place) const noexcept { return place - data(); }

  bool find_more();
  bool has_unsearched() const noexcept;
  void find_ends();
  bool end_last_line();
  void start_slice(const char* slice, LineEnds found);
  void read_more();
  void move_to_front() noexcept;
  void reserve(std::size_t capacity);

  platform::InputFile& file_;
  LineEndFinder find_line_ends_;
  std::size_t block_;                   // bytes to read at a time
  std::size_t capacity_ = 0;            // of the buffer between its paddings
  std::unique_ptr<char, Free> memory_;  // the buffer and its paddings
  std::size_t filled_ = 0;              // bytes in the buffer
  std::size_t searched_ = 0;            // in so many of them line ends were looked for
  std::int64_t buffer_position_ = 0;    // of the buffer's first byte in the file
  std::unique_ptr<std::uint32_t[]> ends_;
  std::unique_ptr<std::uint32_t[]> odd_blanks_;
  LineCursor lines_;
  bool file_ended_ = false;
};

}  // namespace kw::store
