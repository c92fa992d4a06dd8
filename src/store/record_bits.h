// Blocks told by the first and the last eight characters of usual records (see record_reader.h),
// without a branch.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "store/record_reader.h"
#include "store/word_bits.h"

namespace kw::store {

// The words at both ends of a record.
struct RecordBits {
  explicit RecordBits(std::string_view record) noexcept
      : first_8(load_8(record.data())),
        last_8(load_8(record.data() + record.size() - 8)),
        blanks(blank_marks(first_8)),
        size(first_byte_set(blanks)),
        shift(64 - 8 * size),
        word(first_8 & ~std::uint64_t{0} >> shift) {}

  // Whether the first word must be looked at in another way: it is a long one, has letters that are
  // not ASCII, or does not simply end at the first blank.
  bool has_unusual_word(std::string_view record) const noexcept {
    return any(blanks == 0, !all_ascii(word), line_byte(record.front()) == LineByte::list_mark);
  }

  std::uint64_t first_8;
  std::uint64_t last_8;
  std::uint64_t blanks;
  std::size_t size;   // of the first word, if there is a blank behind it
  std::size_t shift;  // leaves so many of the last characters
  std::uint64_t word;
};

// The word that closes the block of which the next record is a part; none between blocks.
class BlockState {
 public:
  bool inside() const noexcept { return closing_ != 0; }

  // Goes on to the next record, which either belongs to the block or opens one, and may close it.
  // In the second case its first word must not be unusual.
  void take(const RecordBits& record) noexcept {
    closing_ |= lower_ascii(record.word) << record.shift & all_if(closing_ == 0);
    // The word's characters are the highest ones. The first of them, at least, has a bit set.
    const auto unused = static_cast<unsigned>(std::countr_zero(closing_)) / 8 * 8;
    closing_ &= all_if((record.last_8 ^ closing_) >> unused != 0);
  }

  // The word; only inside a block.
  std::size_t closing_size() const noexcept { return 8 - first_byte_set(closing_); }
  std::uint64_t closing() const noexcept { return closing_ >> (64 - 8 * closing_size()); }
  void leave() noexcept { closing_ = 0; }

 private:
  static constexpr std::uint64_t all_if(bool condition) noexcept {
    return 0 - static_cast<std::uint64_t>(condition);
  }

  std::uint64_t closing_ = 0;
};

}  // namespace kw::store
