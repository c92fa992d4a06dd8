// The partition scheme, fast: for every array on which it cannot fail.
//
// It makes the same swaps in the same order as the scheme told in checked_scheme.h, so that equal
// keys, and NaNs, end where callers have always found them. Only ranges in which no two keys are
// equal have one order whichever way they are sorted, and are sorted another way when they are
// small.
#pragma once

#include <cstddef>
#include <cstdint>

#include "sort/equal_rows.h"
#include "sort/partition.h"
#include "sort/pending_ranges.h"
#include "sort/small_rows.h"

namespace kw::sort {

// The middle of a range of positions of an array whose first element has the number `lower`. The
// scheme halves the sum of two numbers toward zero: upwards when it is negative.
inline std::ptrdiff_t middle_of(Split range, std::int32_t lower) {
  const std::int64_t sum = std::int64_t{range.i} + range.j + 2 * std::int64_t{lower};
  return static_cast<std::ptrdiff_t>(sum / 2 - lower);
}

// Ends a range of equal keys after its first partition.
template <class Table>
void settle_halves(const Table& rows, Split range, Split split) {
  settle_equal_rows(rows, range.i, split.j - range.i + 1);
  settle_equal_rows(rows, split.i, range.j - split.i + 1);
}

// Sorts one range but for the parts that it puts aside. Ranges of few rows are tried only once:
// once two of their keys have proved equal, the scheme takes them to the end.
template <class Before, class Table>
void settle_range(const Table& rows, Split range, std::int32_t lower,
                  PendingRanges<Split>& pending) {
  bool tried = false;
  while (range.i < range.j) {
    const std::ptrdiff_t count = range.j - range.i + 1;
    if (count <= kFewRows && !tried) {
      if (sort_few_rows<Before>(rows, range.i, count)) return;
      tried = true;
    }
    const auto pivot = rows.keys[middle_of(range, lower)];
    const auto [i, j, equal] = partition<Before>(rows, range, pivot);
    if (equal && pivot == pivot) return settle_halves(rows, range, {i, j});
    range = smaller_side(range, {i, j}, pending);
  }
}

// Sorts `count` rows; `lower` is the number of the first one in the caller's array.
template <class Before, class Table>
void block_scheme(const Table& rows, std::size_t count, std::int32_t lower) {
  PendingRanges<Split> pending;
  pending.push({0, static_cast<std::ptrdiff_t>(count) - 1});
  while (!pending.empty()) settle_range<Before>(rows, pending.pop(), lower, pending);
}

}  // namespace kw::sort
