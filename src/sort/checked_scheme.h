// The partition scheme with every index checked, for arrays on which it may fail.
#pragma once

#include <cstdint>
#include <utility>

#include "kwutils/error.h"
#include "sort/bounded.h"
#include "sort/pending_ranges.h"

namespace kw::sort {

inline std::int32_t checked_index(std::int64_t value) {
  if (value < INT32_MIN || value > INT32_MAX) throw Error(ErrorNumber::overflow);
  return static_cast<std::int32_t>(value);
}

// Two ends of a range: before a partition its first and last element, after it the last element of
// the left side (`high`) and the first of the right side (`low`).
struct IndexRange {
  std::int32_t low;
  std::int32_t high;
};

// Where the scans of the scheme stop, what they exchange, and what fails on the way, are promises
// to callers: this function shows them, block_scheme.h does the same faster where nothing fails.
template <class T, class Before>
IndexRange checked_partition(IndexRange range, const Bounded<T>& values,
                             const Bounded<std::int32_t>* order, const Before& before) {
  std::int32_t i = range.low;
  std::int32_t j = range.high;
  const auto pivot = before.pivot(values.at(checked_index(std::int64_t{i} + j) / 2));
  do {
    while (before(values.at(i), pivot)) i = checked_index(std::int64_t{i} + 1);
    while (before(pivot, values.at(j))) j = checked_index(std::int64_t{j} - 1);
    if (i > j) break;
    std::swap(values.at(i), values.at(j));
    if (order != nullptr) std::swap(order->at(i), order->at(j));
    i = checked_index(std::int64_t{i} + 1);
    j = checked_index(std::int64_t{j} - 1);
  } while (i <= j);
  return {i, j};
}

// Puts the larger side of a partitioned range aside and gives the other one.
inline IndexRange smaller_side(IndexRange range, IndexRange split,
                               PendingRanges<IndexRange>& pending) {
  const std::int32_t left = checked_index(std::int64_t{split.high} - range.low);
  const std::int32_t right = checked_index(std::int64_t{range.high} - split.low);
  if (left < right) {
    if (split.low < range.high) pending.push({split.low, range.high});
    return {range.low, split.high};
  }
  if (range.low < split.high) pending.push({range.low, split.high});
  return {split.low, range.high};
}

// Sorts `values` and gives `order`, where there is one, the same swaps. `before.pivot(element)` is
// what an element compares with: before(element, pivot), before(pivot, element).
//
// Errors: 9 (subscript) when there are no values, or when `order` lacks an element that is to be
// swapped, 6 (overflow) when two bounds of a range have no 32-bit sum. The swaps made until then
// stay; the values are swapped before the order array.
template <class T, class Before>
void checked_scheme(const Bounded<T>& values, const Bounded<std::int32_t>* order,
                    const Before& before) {
  PendingRanges<IndexRange> pending;
  pending.push({values.lower, values.upper});
  do {
    IndexRange range = pending.pop();
    do {
      const IndexRange split = checked_partition(range, values, order, before);
      range = smaller_side(range, split, pending);
    } while (range.low < range.high);
  } while (!pending.empty());
}

}  // namespace kw::sort
