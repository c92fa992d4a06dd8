// Four 16-bit code units at a time in one 64-bit word. The order of the lanes is the machine's; no
// function here depends on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kw::detail {

inline constexpr std::size_t kLanes = 4;
inline constexpr std::uint64_t kOnes = 0x0001'0001'0001'0001;

inline std::uint64_t load_units(const char16_t* units) noexcept {
  std::uint64_t word;
  std::memcpy(&word, units, sizeof word);
  return word;
}

inline void store_units(char16_t* units, std::uint64_t word) noexcept {
  std::memcpy(units, &word, sizeof word);
}

constexpr bool is_ascii(std::uint64_t word) noexcept { return (word & kOnes * 0xFF80) == 0; }

// 0x20, the distance of the two cases, in each lane between `first` and `last`, 0 in the others.
// Every lane must be ASCII.
constexpr std::uint64_t case_bit(std::uint64_t word, char first, char last) noexcept {
  const std::uint64_t from = word + kOnes * (0x80u - static_cast<unsigned char>(first));
  const std::uint64_t past = word + kOnes * (0x7Fu - static_cast<unsigned char>(last));
  return ((from ^ past) & kOnes * 0x80) >> 2;
}

constexpr std::uint64_t upper_ascii(std::uint64_t word) noexcept {
  return word - case_bit(word, 'a', 'z');
}

constexpr std::uint64_t lower_ascii(std::uint64_t word) noexcept {
  return word + case_bit(word, 'A', 'Z');
}

}  // namespace kw::detail
