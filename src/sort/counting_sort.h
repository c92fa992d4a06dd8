// Counting sort of 16-bit numbers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "sort/compare.h"
#include "sort/number_key.h"

namespace kw::sort {

inline constexpr std::size_t kSixteenBitValues = 65536;

// `counts` has room for kSixteenBitValues counts.
template <Direction kDirection>
void counting_sort(std::int16_t* numbers, std::size_t count, std::uint32_t* counts) {
  std::fill_n(counts, kSixteenBitValues, 0u);
  for (std::size_t k = 0; k < count; ++k) ++counts[key_of(numbers[k])];
  for (std::size_t value = 0; value < kSixteenBitValues; ++value) {
    const std::size_t key =
        kDirection == Direction::ascending ? value : kSixteenBitValues - 1 - value;
    const auto number = static_cast<std::int16_t>(static_cast<std::int32_t>(key) + INT16_MIN);
    numbers = std::fill_n(numbers, counts[key], number);
  }
}

}  // namespace kw::sort
