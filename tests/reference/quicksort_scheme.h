// The quicksort with a stack of pending ranges, transcribed step by step with no regard to speed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kwutils/error.h"

namespace kw::reference {

// An array with bounds of its own whose every access is checked.
template <class T>
struct BasedArray {
  std::int32_t lower = 0;
  std::vector<T> values;

  std::int32_t upper() const {
    return static_cast<std::int32_t>(std::int64_t{lower} + std::ssize(values) - 1);
  }
  T& at(std::int32_t index) {
    if (index < lower || index > upper()) throw Error(ErrorNumber::subscript_out_of_range);
    return values[static_cast<std::size_t>(std::int64_t{index} - lower)];
  }
};

inline std::int32_t checked(std::int64_t value) {
  if (value < INT32_MIN || value > INT32_MAX) throw Error(ErrorNumber::overflow);
  return static_cast<std::int32_t>(value);
}

inline std::int32_t sum(std::int32_t a, std::int32_t b) { return checked(std::int64_t{a} + b); }
inline std::int32_t difference(std::int32_t a, std::int32_t b) {
  return checked(std::int64_t{a} - b);
}

// The pending ranges, in slots 1 to the capacity.
class RangeStack {
 public:
  using Range = std::pair<std::int32_t, std::int32_t>;

  void push(std::int32_t low, std::int32_t high) {
    slots_[pointer_] = {low, high};
    ++pointer_;
    if (pointer_ > capacity_) slots_.resize((capacity_ *= 2) + 1);
    if (pointer_ - 1 > deepest_) deepest_ = pointer_ - 1;
  }
  Range pop() { return slots_[--pointer_]; }
  bool empty() const { return pointer_ == 1; }
  std::size_t deepest() const { return deepest_; }

 private:
  std::size_t capacity_ = 1024;
  std::vector<Range> slots_ = std::vector<Range>(capacity_ + 1);
  std::size_t pointer_ = 1;
  std::size_t deepest_ = 0;
};

// Sorts `values` so that `before(a, b)` holds for no later a and earlier b; `order`, when there is
// one, receives the same swaps. Returns the greatest number of ranges that were pending at a time.
// Errors 6 and 9 leave the arrays as they are at that moment.
template <class T, class Before>
std::size_t quicksort(BasedArray<T>& values, BasedArray<std::int32_t>* order, Before before) {
  RangeStack pending;
  pending.push(values.lower, values.upper());
  do {
    auto [lo, hi] = pending.pop();
    do {
      std::int32_t i = lo;
      std::int32_t j = hi;
      const T pivot = values.at(sum(lo, hi) / 2);
      do {
        while (before(values.at(i), pivot)) i = sum(i, 1);
        while (before(pivot, values.at(j))) j = difference(j, 1);
        if (i <= j) {
          std::swap(values.at(i), values.at(j));
          if (order != nullptr) std::swap(order->at(i), order->at(j));
          i = sum(i, 1);
          j = difference(j, 1);
        }
      } while (i <= j);
      if (difference(j, lo) < difference(hi, i)) {
        if (i < hi) pending.push(i, hi);
        hi = j;
      } else {
        if (lo < j) pending.push(lo, j);
        lo = i;
      }
    } while (lo < hi);
  } while (!pending.empty());
  return pending.deepest();
}

}  // namespace kw::reference
