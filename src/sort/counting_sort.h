// Counting sort of 16-bit numbers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "sort/number_key.h"

namespace kw::sort {

inline constexpr std::size_t kSixteenBitValues = 65536;

// Four numbers are read at a time; counts do not mind in which order.
inline void count_values(const std::int16_t* numbers, std::size_t count, std::uint32_t* counts) {
  std::fill_n(counts, kSixteenBitValues, 0u);
  std::size_t k = 0;
  for (; k + 4 <= count; k += 4) {
    std::uint64_t four;
    std::memcpy(&four, numbers + k, sizeof four);
    four ^= 0x8000'8000'8000'8000;
    for (int shift = 0; shift < 64; shift += 16) ++counts[(four >> shift) & 0xFFFF];
  }
  for (; k < count; ++k) ++counts[key_of(numbers[k])];
}

// Writes `number` `count` times and, where `room` allows, some times more: most counts are small,
// and a fixed number of writes takes no branch. Gives the place after the counted ones.
inline std::int16_t* write_run(std::int16_t* to, std::size_t count, std::size_t room,
                               std::int16_t number) {
  constexpr std::size_t kAtOnce = 16;
  if (room < count + kAtOnce) return std::fill_n(to, count, number);
  for (std::size_t k = 0; k < count; k += kAtOnce) std::fill_n(to + k, kAtOnce, number);
  return to + count;
}

// Sorts ascending; `counts` has room for kSixteenBitValues counts.
inline void counting_sort(std::int16_t* numbers, std::size_t count, std::uint32_t* counts) {
  count_values(numbers, count, counts);
  const std::int16_t* const end = numbers + count;
  for (std::size_t value = 0; value < kSixteenBitValues; ++value) {
    const auto number = static_cast<std::int16_t>(static_cast<std::int32_t>(value) + INT16_MIN);
    numbers = write_run(numbers, counts[value], static_cast<std::size_t>(end - numbers), number);
  }
}

}  // namespace kw::sort
