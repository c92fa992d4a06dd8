// Sixteen bytes of text compared at a time, where the processor's baseline has the instructions.
//
// KW_VECTOR_UNITS is 1 when it has; whoever uses this header keeps a plain loop for the rest.
#pragma once

#include <bit>
#include <cstddef>

#if defined(__SSE2__)
#define KW_VECTOR_UNITS 1
#include <emmintrin.h>
#else
#define KW_VECTOR_UNITS 0
#endif

namespace kw::detail {

#if KW_VECTOR_UNITS

// A set of positions in a block of kSize code units.
template <class Char>
class BlockMask {
 public:
  explicit BlockMask(int bytes) noexcept : bits_(static_cast<unsigned>(bytes) & kFirstBytes) {}

  bool empty() const noexcept { return bits_ == 0; }
  // One bit for each byte.
  unsigned bits() const noexcept { return bits_; }
  std::size_t first() const noexcept {
    return static_cast<std::size_t>(std::countr_zero(bits_)) / sizeof(Char);
  }
  void drop_first() noexcept { bits_ &= bits_ - 1; }

 private:
  static constexpr unsigned kFirstBytes = sizeof(Char) == 1 ? 0xFFFFu : 0x5555u;

  unsigned bits_;
};

// Sixteen bytes of code units.
template <class Char>
class Block {
 public:
  static constexpr std::size_t kSize = 16 / sizeof(Char);

  static Block of(Char unit) noexcept {
    if constexpr (sizeof(Char) == 1) {
      return Block(_mm_set1_epi8(static_cast<char>(unit)));
    } else {
      return Block(_mm_set1_epi16(static_cast<short>(unit)));
    }
  }
  static Block load(const Char* units) noexcept {
    return Block(_mm_loadu_si128(reinterpret_cast<const __m128i*>(units)));
  }

  // All bits set in each unit in which both blocks are the same.
  Block equal(Block other) const noexcept {
    if constexpr (sizeof(Char) == 1) {
      return Block(_mm_cmpeq_epi8(bytes_, other.bytes_));
    } else {
      return Block(_mm_cmpeq_epi16(bytes_, other.bytes_));
    }
  }
  Block operator&(Block other) const noexcept { return Block(_mm_and_si128(bytes_, other.bytes_)); }
  BlockMask<Char> mask() const noexcept { return BlockMask<Char>(_mm_movemask_epi8(bytes_)); }

 private:
  explicit Block(__m128i bytes) noexcept : bytes_(bytes) {}

  __m128i bytes_;
};

#endif

}  // namespace kw::detail
