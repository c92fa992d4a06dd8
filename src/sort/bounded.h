// Bounded: the elements of an array under the numbers of its own bounds.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kwutils/error.h"

namespace kw::sort {

// A view; whoever made it keeps the elements alive. An array that was never dimensioned, like an
// empty one, has an upper bound below its lower bound.
template <class T>
struct Bounded {
  T* data = nullptr;
  std::int32_t lower = 0;
  std::int32_t upper = -1;

  bool empty() const noexcept { return upper < lower; }
  std::size_t size() const noexcept {
    return empty() ? 0 : static_cast<std::size_t>(std::int64_t{upper} - lower + 1);
  }
  bool contains(std::int32_t index) const noexcept { return lower <= index && index <= upper; }
  // The element with the number `index`. Error 9 (subscript) when there is none.
  T& at(std::int32_t index) const {
    if (!contains(index)) throw Error(ErrorNumber::subscript_out_of_range);
    return data[std::int64_t{index} - lower];
  }
};

// Whether no range of the array can make the scheme fail: there are elements, and any two indexes
// have a 32-bit sum.
template <class T>
bool can_sort(const Bounded<T>& values) noexcept {
  constexpr std::int32_t kHalf = INT32_MAX / 2;
  return !values.empty() && values.lower >= -kHalf && values.upper <= kHalf;
}

// Whether `order` has an element of its own for each index of `values`: arrays that share memory
// undo each other's swaps.
template <class T>
bool covers(const Bounded<std::int32_t>& order, const Bounded<T>& values) noexcept {
  return order.contains(values.lower) && order.contains(values.upper) &&
         static_cast<const void*>(order.data) != static_cast<const void*>(values.data);
}

}  // namespace kw::sort
