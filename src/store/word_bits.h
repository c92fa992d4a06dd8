// Up to eight characters of a word in one 64-bit number, the first one in the lowest byte.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kw::store {

// Whether all, or any, of the conditions hold. All of them are looked at: what cannot be foreseen
// is better added up than branched on.
template <class... Condition>
constexpr bool all(Condition... conditions) noexcept {
  return (static_cast<unsigned>(conditions) & ...) != 0;
}
template <class... Condition>
constexpr bool any(Condition... conditions) noexcept {
  return (static_cast<unsigned>(conditions) | ...) != 0;
}

// Every bit where the condition holds, else none.
constexpr std::uint64_t all_bits_if(bool condition) noexcept {
  return 0 - static_cast<std::uint64_t>(condition);
}

inline std::uint64_t load_8(const char* bytes) noexcept {
  std::uint64_t word;
  std::memcpy(&word, bytes, sizeof word);
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  return word;
}

// Fewer than eight characters, or eight.
inline std::uint64_t load_up_to_8(const char* bytes, std::size_t count) noexcept {
  std::uint64_t word = 0;
  for (std::size_t i = count; i-- > 0;) word = word << 8 | static_cast<unsigned char>(bytes[i]);
  return word;
}

inline constexpr std::uint64_t kEveryByte = 0x0101'0101'0101'0101;

// The lowest `count` bytes, 0 to 8 of them.
constexpr std::uint64_t low_bytes(std::size_t count) noexcept {
  return count == 0 ? 0 : ~std::uint64_t{0} >> (64 - 8 * count);
}

constexpr bool all_ascii(std::uint64_t word) noexcept { return (word & kEveryByte * 0x80) == 0; }

// The number of the lowest byte with a bit set; 7 when none is, which spares the question.
constexpr std::size_t first_byte_set(std::uint64_t word) noexcept {
  return static_cast<std::size_t>(std::countr_zero(word | std::uint64_t{1} << 63)) / 8;
}

// How many blanks it begins with; 7 when there is nothing else.
constexpr std::size_t leading_blanks(std::uint64_t word) noexcept {
  return first_byte_set(word ^ kEveryByte * ' ');
}

// The lowest bit set marks the first blank; nothing is set when there is none.
constexpr std::uint64_t blank_marks(std::uint64_t word) noexcept {
  const std::uint64_t other = word ^ kEveryByte * ' ';
  return (other - kEveryByte) & ~other & kEveryByte * 0x80;
}

// Every byte in lower case; all of them must be ASCII.
constexpr std::uint64_t lower_ascii(std::uint64_t word) noexcept {
  const std::uint64_t from_a = word + kEveryByte * (0x80 - 'A');
  const std::uint64_t past_z = word + kEveryByte * (0x7F - 'Z');
  return word | ((from_a & ~past_z & kEveryByte * 0x80) >> 2);
}

}  // namespace kw::store
