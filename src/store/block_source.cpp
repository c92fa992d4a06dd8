#include "store/block_source.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace kw::store {

namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;
constexpr std::size_t kSmallestBlock = std::size_t{4} << 10;
// In front of a block there is room for the line that the block before it began.
constexpr std::size_t kLineRoom = std::size_t{4} << 10;
// Few enough bytes to be in the first-level cache still when their lines are looked at.
constexpr std::size_t kSlice = std::size_t{16} << 10;

// A file that fits into one block is read at once, with room to see that it ends.
std::size_t block_for(std::int64_t size) {
  if (size <= 0 || size >= static_cast<std::int64_t>(kBlock)) return kBlock;
  return std::max(static_cast<std::size_t>(size) + 1, kSmallestBlock);
}

}  // namespace

BlockSource::BlockSource(platform::InputFile& file)
    : file_(file), find_line_ends_(line_end_finder()), block_(block_for(file.size_hint())) {
  reserve(block_ + kLineRoom);
  begin_ = slice_ = buffer_.get();
  ends_.reset(new std::uint32_t[std::min(kSlice, capacity_) + kFinderSlack]);
}

void BlockSource::reserve(std::size_t capacity) {
  const std::size_t begin = static_cast<std::size_t>(begin_ - buffer_.get());
  const std::size_t padded = capacity + 1 + kFinderPadding;
  char* const memory = static_cast<char*>(std::realloc(buffer_.get(), padded));
  if (memory == nullptr) throw std::bad_alloc();
  static_cast<void>(buffer_.release());  // realloc took it over
  buffer_.reset(memory);
  capacity_ = capacity;
  begin_ = memory + begin;
}

bool BlockSource::find_more() {
  for (;;) {
    while (has_unsearched()) {
      find_ends();
      if (next_end_ != last_end_) return true;
    }
    if (file_ended_) return end_last_line();
    read_more();
  }
}

bool BlockSource::has_unsearched() const noexcept {
  if (searched_ == filled_) return false;
  // Whether a CR ends a line is known with the byte behind it.
  return file_ended_ || searched_ + 1 < filled_ || buffer_.get()[searched_] != '\r';
}

void BlockSource::find_ends() {
  std::size_t end = std::min(searched_ + kSlice, filled_);
  if (end == filled_ && !file_ended_ && buffer_.get()[end - 1] == '\r') --end;
  const bool continues_line = buffer_.get() + searched_ != begin_;
  slice_ = buffer_.get() + searched_;
  const LineEnds found = find_line_ends_(slice_, end - searched_, ends_.get());
  odd_blanks_ = found.odd_blanks || (odd_blanks_ && continues_line);
  next_end_ = ends_.get();
  last_end_ = next_end_ + found.count;
  searched_ = end;
}

// A last line without an end ends with the file.
bool BlockSource::end_last_line() noexcept {
  const char* const end = buffer_.get() + filled_;
  if (begin_ >= end) return false;
  slice_ = end;
  ends_[0] = 0;
  next_end_ = ends_.get();
  last_end_ = next_end_ + 1;
  return true;
}

void BlockSource::read_more() {
  move_to_front();
  if (capacity_ - filled_ < block_) reserve(std::max(capacity_ * 2, filled_ + block_));
  const std::size_t count = file_.read(buffer_.get() + filled_, block_);
  filled_ += count;
  file_ended_ = count == 0;
  // No LF follows a CR at the end. An empty buffer stays as it is: it may show the last line still.
  if (filled_ != 0) buffer_.get()[filled_] = '\0';
}

void BlockSource::move_to_front() noexcept {
  const auto used = std::min(static_cast<std::size_t>(begin_ - buffer_.get()), filled_);
  filled_ -= used;
  searched_ -= used;
  if (filled_ != 0) std::memmove(buffer_.get(), begin_, filled_);
  begin_ = slice_ = buffer_.get();
  buffer_position_ += static_cast<std::int64_t>(used);
}

void BlockSource::seek(std::int64_t position) {
  file_.seek(position);
  begin_ = slice_ = buffer_.get();
  next_end_ = last_end_ = ends_.get();
  filled_ = searched_ = 0;
  buffer_position_ = position;
  file_ended_ = odd_blanks_ = false;
}

}  // namespace kw::store
