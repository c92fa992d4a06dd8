// The lines of a file, as views into the blocks that it is read in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "platform/files.h"
#include "store/line_ends.h"

namespace kw::store {

// A line ends at CR LF, at a lone CR and at a lone LF; the last one needs no end. No line is too
// long: the buffer holds one block, or the longest line where that is longer.
class BlockSource {
 public:
  // The file must outlive the source, and is nobody else's meanwhile.
  explicit BlockSource(platform::InputFile& file);

  // True when no byte follows the last line. May read on: the line is then no longer valid, unless
  // the answer is true.
  bool at_end() { return next_end_ == last_end_ && !find_more(); }

  // The next line, without its end; only where at_end() is false. It is valid until the next call
  // of at_end(), next() or seek().
  std::string_view next() {
    const char* const first = begin_;
    const char* last = slice_ + *next_end_++;
    begin_ = last + 1;
    if (last != first && last[-1] == '\r') --last;
    return {first, static_cast<std::size_t>(last - first)};
  }

  // False when the line that next() gave last, and those around it, hold neither a tab nor a
  // no-break space; true tells nothing.
  bool maybe_odd_blanks() const noexcept { return odd_blanks_; }

  // How many bytes of the file stand in front of the next line.
  std::int64_t position() const noexcept {
    const char* const end = buffer_.get() + filled_;
    const char* const next = begin_ < end ? begin_ : end;  // the last line may have no end
    return buffer_position_ + (next - buffer_.get());
  }
  // The next line begins `position` bytes after the file's first byte, wherever that is. Error 63
  // as InputFile::seek; the source then stands where it stood.
  void seek(std::int64_t position);

 private:
  struct Free {
    void operator()(char* memory) const noexcept { std::free(memory); }
  };

  bool find_more();
  bool has_unsearched() const noexcept;
  void find_ends();
  bool end_last_line() noexcept;
  void read_more();
  void move_to_front() noexcept;
  void reserve(std::size_t capacity);

  platform::InputFile& file_;
  LineEndFinder find_line_ends_;
  std::size_t block_;         // bytes to read at a time
  std::size_t capacity_ = 0;  // of the buffer, without the padding of the finder
  std::unique_ptr<char, Free> buffer_;
  std::unique_ptr<std::uint32_t[]> ends_;  // offsets in the slice
  const char* slice_ = nullptr;            // the piece that was searched for line ends last
  const std::uint32_t* next_end_ = nullptr;
  const std::uint32_t* last_end_ = nullptr;
  const char* begin_ = nullptr;       // of the next line
  std::size_t filled_ = 0;            // bytes in the buffer
  std::size_t searched_ = 0;          // in so many of them line ends were looked for
  std::int64_t buffer_position_ = 0;  // of the buffer's first byte in the file
  bool odd_blanks_ = false;
  bool file_ended_ = false;
};

}  // namespace kw::store
