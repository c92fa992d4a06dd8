// Blocks told by the first word and the last eight characters of usual records (see
// record_reader.h), without a branch.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/vector_units.h"
#include "store/word_bits.h"

namespace kw::store {

// How many blanks a line begins with, and how long the word behind them is; more than 8 where it
// does not end soon enough to tell. Only where there are fewer than 8 blanks. 16 characters of the
// line can be read, be they its own or not.
struct LineStart {
  explicit LineStart(const char* line) noexcept {
#if KW_VECTOR_UNITS
    using Block = kw::detail::Block<char>;
    const unsigned marks = Block::load(line).equal(Block::of(' ')).mask().bits();
    blanks = static_cast<unsigned>(std::countr_one(marks));
    word_size = static_cast<unsigned>(std::countr_zero((marks | 1u << 16) >> blanks));
#else
    blanks = static_cast<unsigned>(leading_blanks(load_8(line)));
    const std::uint64_t marks = blank_marks(load_8(line + blanks));
    word_size = static_cast<unsigned>(std::countr_zero(marks)) / 8 + (marks == 0);
#endif
  }

  unsigned blanks;
  unsigned word_size;
};

// By the length of a word, which of the first eight characters are its own; none where the word
// must be looked at in another way.
using WordMasks = std::array<std::uint64_t, 17>;

// Long words, and those of `other_size`, are looked at in another way.
constexpr WordMasks word_masks(std::size_t other_size) {
  WordMasks masks{};
  for (std::size_t size = 1; size <= 8; ++size)
    if (size != other_size) masks[size] = low_bytes(size);
  return masks;
}

// The word that closes the block of which the next record is a part; none between blocks.
class BlockState {
 public:
  bool inside() const noexcept { return closing_ != 0; }

  // Goes on to the next record, which ends in `last_8`. It either belongs to the block, or opens
  // that of `word`, which has `size` characters; and may close it. False, and nothing done, where
  // it would open one and the word is 0.
  bool take(std::uint64_t word, unsigned size, std::uint64_t last_8) noexcept {
    const std::uint64_t outside = all_bits_if(closing_ == 0);
    closing_ |= lower_ascii(word) & outside;
    unused_bits_ |= (64 - 8 * size) & outside;
    if (closing_ == 0) [[unlikely]] {
      unused_bits_ = 0;
      return false;
    }
    const std::uint64_t stays = all_bits_if(last_8 >> unused_bits_ != closing_);
    closing_ &= stays;
    unused_bits_ &= stays;
    return true;
  }

  // The word and its length; only inside a block.
  std::uint64_t closing() const noexcept { return closing_; }
  std::size_t closing_size() const noexcept {
    return static_cast<std::size_t>((64 - unused_bits_) / 8);
  }

 private:
  std::uint64_t closing_ = 0;
  std::uint64_t unused_bits_ = 0;  // of eight characters that end in the word
};

}  // namespace kw::store
