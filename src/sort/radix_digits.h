// What radix sorts by the least significant digit first have in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace kw::sort {

inline constexpr int kDigitBits = 11;

// Of few numbers shorter digits are faster: their counts are sooner cleared and added up.
inline constexpr int kShortDigitBits = 8;
inline constexpr std::size_t kShortDigitsBelow = 1500;

// Makes the counts of all values of a digit the positions where the numbers with them begin.
inline void counts_to_positions(std::uint32_t* counts, std::size_t values) noexcept {
  std::uint32_t position = 0;
  for (std::size_t value = 0; value < values; ++value)
    position += std::exchange(counts[value], position);
}

// Moves each number to where the numbers with its digit go next.
template <class T, class DigitOf>
void move_by_digit(const T* from, T* to, std::size_t count, std::uint32_t* positions,
                   DigitOf digit_of) {
  for (std::size_t k = 0; k < count; ++k) {
    const T number = from[k];
    to[positions[digit_of(number)]++] = number;
  }
}

}  // namespace kw::sort
