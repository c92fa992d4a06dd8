// Quicksort of numbers that have one order.
#pragma once

#include <cstddef>
#include <utility>

#include "sort/compare.h"
#include "sort/partition.h"
#include "sort/pending_ranges.h"
#include "sort/rows.h"
#include "sort/sorting_network.h"

namespace kw::sort {

template <class T>
T middle_of_three(T a, T b, T c) {
  put_in_order(a, b);
  put_in_order(b, c);
  put_in_order(a, b);
  return b;
}

template <class T>
void quick_range(T* numbers, Split range, PendingRanges<Split>& pending) {
  while (range.i < range.j) {
    T* const first = numbers + range.i;
    const std::ptrdiff_t count = range.j - range.i + 1;
    if (count <= static_cast<std::ptrdiff_t>(kWidestNetwork))
      return sort_few_numbers(first, static_cast<std::size_t>(count));
    const T pivot = middle_of_three(first[count / 4], first[count / 2], first[count / 4 * 3]);
    const auto [i, j, equal] = partition<Ascending>(make_rows(numbers), range, pivot);
    if (equal) return;
    range = smaller_side(range, {i, j}, pending);
  }
}

// Sorts in place, ascending, with the partitions of the scheme but pivots of its own choice.
template <class T>
void quick_sort(T* numbers, std::size_t count) {
  PendingRanges<Split> pending;
  pending.push({0, static_cast<std::ptrdiff_t>(count) - 1});
  while (!pending.empty()) quick_range(numbers, pending.pop(), pending);
}

}  // namespace kw::sort
