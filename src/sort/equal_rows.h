// What the partition scheme does to rows whose keys are all equal.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "sort/pending_ranges.h"
#include "sort/rows.h"

namespace kw::sort {

// The scheme reverses a range of equal keys and then does the same to its two halves; the middle
// element of an odd number is settled. Two such steps swap the halves as they are.
template <class T>
void permute_equal(T* column, std::ptrdiff_t count) {
  struct Part {
    T* first;
    std::ptrdiff_t count;
  };
  PendingRanges<Part> pending;
  pending.push({column, count});
  while (!pending.empty()) {
    const auto [first, size] = pending.pop();
    const std::ptrdiff_t half = size / 2;
    T* const second = first + (size - half);
    std::swap_ranges(first, first + half, second);
    const std::ptrdiff_t quarter = half / 2;
    if (quarter == 0) continue;
    for (T* start : {first, second}) {
      pending.push({start, quarter});
      pending.push({start + (half - quarter), quarter});
    }
  }
}

// Settles the rows from `first` on, whose keys are all equal; NaNs may be among them. Equal whole
// numbers are the same number: their keys can stay.
template <class Key, class... Companions>
void settle_equal_rows(const Rows<Key, Companions...>& rows, std::ptrdiff_t first,
                       std::ptrdiff_t count) {
  if constexpr (!std::is_integral_v<Key>) permute_equal(rows.keys + first, count);
  rows.for_each_companion([=](auto* column) { permute_equal(column + first, count); });
}

}  // namespace kw::sort
