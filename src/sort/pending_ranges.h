// PendingRanges: the ranges that a sort has put aside.
#pragma once

#include <array>
#include <cstddef>

namespace kw::sort {

// A stack without allocation. A sort that puts the larger side of a range aside and goes on with
// the smaller one has at most one range pending for each halving of what it began with, so that
// `Capacity` = 64 serves any array; see multikey_sort.h for three sides.
template <class Range, std::size_t Capacity = 64>
class PendingRanges {
 public:
  void push(const Range& range) noexcept { ranges_[count_++] = range; }
  Range pop() noexcept { return ranges_[--count_]; }
  bool empty() const noexcept { return count_ == 0; }

 private:
  std::array<Range, Capacity> ranges_;
  std::size_t count_ = 0;
};

}  // namespace kw::sort
