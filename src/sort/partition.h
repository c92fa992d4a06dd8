// One partition of the scheme without a branch per element.
//
// The scan from the left stops at the elements that do not come before the pivot, the scan from the
// right at those that do not come after it; the k-th stop of one scan is swapped with the k-th of
// the other until they meet. Which elements are stops does not depend on the swaps, so that the
// stops of a whole window can be gathered first, as the set bits of a word, and then swapped in
// pairs: the same swaps in the same order.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "sort/key_flags.h"
#include "sort/pending_ranges.h"

namespace kw::sort {

// The first and last position of a range. After a partition, `i` is the first position of the right
// side and `j` the last one of the left side.
struct Split {
  std::ptrdiff_t i;
  std::ptrdiff_t j;
};

inline constexpr std::ptrdiff_t kWindow = 64;

inline constexpr std::uint64_t low_bits(std::ptrdiff_t count) {
  return ~std::uint64_t{0} >> (kWindow - count);
}

// Bit k is set when the element at first + k stops the scan from the left; `count` is 1 to 64.
template <class Before, class Key>
std::uint64_t left_stops(const Key* first, std::ptrdiff_t count, Key pivot) {
  return ~key_flags<Before::kLeft>(first, count, pivot) & low_bits(count);
}

template <class Before, class Key>
std::uint64_t right_stops(const Key* first, std::ptrdiff_t count, Key pivot) {
  return ~key_flags<Before::kRight>(first, count, pivot) & low_bits(count);
}

inline int lowest(std::uint64_t bits) { return std::countr_zero(bits); }
inline int highest(std::uint64_t bits) { return 63 - std::countl_zero(bits); }
inline std::uint64_t without_lowest(std::uint64_t bits) { return bits & (bits - 1); }
inline std::uint64_t without_highest(std::uint64_t bits) {
  return bits & ~(std::uint64_t{1} << highest(bits));
}

// The positions that a partition has still to look at, and what it has seen.
struct Progress {
  std::ptrdiff_t i;
  std::ptrdiff_t j;
  bool equal = true;  // every key so far stopped both scans
};

// Whether `half` keys at each end of `open` stop the other scan as well, when all stop their own.
template <class Before, class Key>
bool all_equal(const Key* keys, const Progress& open, std::ptrdiff_t half, Key pivot) {
  return (right_stops<Before>(keys + open.i, half, pivot) &
          left_stops<Before>(keys + open.j - half + 1, half, pivot)) == low_bits(half);
}

// Takes windows off both ends of the range `open`, until few positions are left.
template <class Before, class Table, class Key>
Progress partition_ends(const Table& rows, Split range, Key pivot) {
  Progress open = {range.i, range.j};
  while (open.j - open.i >= kWindow) {
    const std::ptrdiff_t half = std::min(kWindow, (open.j - open.i + 1) / 2);
    const std::ptrdiff_t end = open.j - half + 1;
    std::uint64_t left = left_stops<Before>(rows.keys + open.i, half, pivot);
    std::uint64_t right = right_stops<Before>(rows.keys + end, half, pivot);
    const bool all = (left & right) == low_bits(half);
    open.equal = open.equal && all && all_equal<Before>(rows.keys, open, half, pivot);
    if (all) {
      rows.exchange_mirrored(open.i, open.j, half);
      left = right = 0;
    }
    for (; left != 0 && right != 0; left = without_lowest(left), right = without_highest(right))
      rows.exchange(open.i + lowest(left), end + highest(right));
    open.i += left == 0 ? half : lowest(left);
    open.j = right == 0 ? end - 1 : end + highest(right);
  }
  return open;
}

// Ends a partition whose scans have at most a window between them.
template <class Before, class Table, class Key>
Progress partition_middle(const Table& rows, Progress open, Key pivot) {
  auto [i, j, equal] = open;
  if (i > j) return open;
  const std::ptrdiff_t base = i;
  std::uint64_t left = left_stops<Before>(rows.keys + base, j - base + 1, pivot);
  std::uint64_t right = right_stops<Before>(rows.keys + base, j - base + 1, pivot);
  equal = equal && (left & right) == low_bits(j - base + 1);
  while (i <= j) {
    // Each scan stops at the latest where the other one has swapped.
    const std::ptrdiff_t stop = left == 0 ? j + 1 : std::min(base + lowest(left), j + 1);
    j = right == 0 ? i - 1 : std::max(base + highest(right), i - 1);
    i = stop;
    if (i > j) break;
    rows.exchange(i, j);
    left = without_lowest(left);
    right = without_highest(right);
    ++i;
    --j;
  }
  return {i, j, equal};
}

// Partitions the positions of `range`, one of which holds the pivot. `equal` tells that no key of
// the range came before or after the pivot.
template <class Before, class Table, class Key>
Progress partition(const Table& rows, Split range, Key pivot) {
  return partition_middle<Before>(rows, partition_ends<Before>(rows, range, pivot), pivot);
}

// Puts the larger side of a partitioned range aside and gives the other one.
inline Split smaller_side(Split range, Split split, PendingRanges<Split>& pending) {
  if (split.j - range.i < range.j - split.i) {
    if (split.i < range.j) pending.push({split.i, range.j});
    return {range.i, split.j};
  }
  if (range.i < split.j) pending.push({range.i, split.j});
  return {split.i, range.j};
}

}  // namespace kw::sort
