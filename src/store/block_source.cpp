#include "store/block_source.h"

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
  // A slice is a part of what one read gives, and the CR that waited for it.
  const std::size_t entries = std::min(kSlice, block_ + 1) + kFinderSlack;
  ends_.reset(new std::uint32_t[entries]);
  odd_blanks_.reset(new std::uint32_t[entries]);
  start_slice(data(), {});
}

// No line is at hand when the buffer moves.
void BlockSource::reserve(std::size_t capacity) {
  const std::size_t padded = kPadding + capacity + 1 + kPadding;
  char* const memory = static_cast<char*>(std::realloc(memory_.get(), padded));
  if (memory == nullptr) throw std::bad_alloc();
  static_cast<void>(memory_.release());  // realloc took it over
  memory_.reset(memory);
  capacity_ = capacity;
}

bool BlockSource::find_more() {
  for (;;) {
    while (has_unsearched()) {
      find_ends();
      if (!lines_.empty()) return true;
    }
    if (file_ended_) return end_last_line();
    read_more();
  }
}

bool BlockSource::has_unsearched() const noexcept {
  if (searched_ == filled_) return false;
  // Whether a CR ends a line is known with the byte behind it.
  return file_ended_ || searched_ + 1 < filled_ || data()[searched_] != '\r';
}

void BlockSource::find_ends() {
  std::size_t end = std::min(searched_ + kSlice, filled_);
  if (end == filled_ && !file_ended_ && data()[end - 1] == '\r') --end;
  const char* const slice = data() + searched_;
  start_slice(slice, find_line_ends_(slice, end - searched_, ends_.get(), odd_blanks_.get()));
  searched_ = end;
}

// The next line may have begun in front of the slice.
void BlockSource::start_slice(const char* slice, LineEnds found) {
  odd_blanks_[found.odd_blanks] = LineCursor::kNoOffset;
  const char* const begin = lines_.begin() != nullptr ? lines_.begin() : slice;
  lines_ =
      LineCursor(begin, slice, ends_.get(), found.ends, odd_blanks_.get(), lines_.odd_behind());
}

// A last line without an end ends with the file.
bool BlockSource::end_last_line() {
  const char* const end = data() + filled_;
  if (lines_.begin() >= end) return false;
  ends_[0] = 0;
  start_slice(end, {.ends = 1});
  return true;
}

void BlockSource::read_more() {
  move_to_front();
  if (capacity_ - filled_ < block_) reserve(std::max(capacity_ * 2, filled_ + block_));
  lines_.move_to(data());
  const std::size_t count = file_.read(data() + filled_, block_);
  filled_ += count;
  file_ended_ = count == 0;
  // No LF follows a CR at the end. An empty buffer stays as it is: it may show the last line still.
  if (filled_ != 0) data()[filled_] = '\0';
}

void BlockSource::move_to_front() noexcept {
  const auto gone = static_cast<std::size_t>(offset(used()));
  filled_ -= gone;
  searched_ -= gone;
  if (filled_ != 0) std::memmove(data(), data() + gone, filled_);
  buffer_position_ += static_cast<std::int64_t>(gone);
}

void BlockSource::seek(std::int64_t position) {
  file_.seek(position);
  lines_ = LineCursor();
  filled_ = searched_ = 0;
  start_slice(data(), {});
  buffer_position_ = position;
  file_ended_ = false;
}

}  // namespace kw::store
