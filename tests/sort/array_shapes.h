// Arrays to sort: every shape that a quicksort may mind.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
#include <type_traits>
#include <vector>

#include "reference/quicksort_scheme.h"
#include "reference/random_inputs.h"

namespace kw::sort {

using reference::BasedArray;
using reference::pick;
using reference::Random;

template <class T>
T special_number(Random& random) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>) {
    const T numbers[] = {0,
                         -T{0},
                         Limits::quiet_NaN(),
                         Limits::infinity(),
                         -Limits::infinity(),
                         Limits::denorm_min(),
                         Limits::max(),
                         1};
    return numbers[pick(random, 0, 7)];
  } else {
    const T numbers[] = {0, 1, -1, Limits::min(), Limits::max()};
    return numbers[pick(random, 0, 4)];
  }
}

template <class T>
T any_number(Random& random) {
  if constexpr (std::is_floating_point_v<T>)
    return static_cast<T>(static_cast<std::int64_t>(random())) / T(1 << 20);
  else
    return static_cast<T>(random());
}

// Numbers of one of several distributions: all there are, few of them, special ones.
template <class T>
std::vector<T> pick_numbers(Random& random, std::size_t count) {
  const std::size_t kind = pick(random, 0, 4);
  const std::size_t different = pick(random, 1, kind == 1 ? 4 : 300);
  std::vector<T> numbers(count);
  for (T& number : numbers) {
    if (kind == 0)
      number = any_number<T>(random);
    else if (kind < 4)
      number = static_cast<T>(static_cast<std::int64_t>(pick(random, 0, different)) - 2);
    if (kind == 4 || (kind == 3 && pick(random, 0, 9) == 0)) number = special_number<T>(random);
  }
  return numbers;
}

// Elements in ascending order become an organ pipe: up, and down again.
template <class Element>
void pipe(std::vector<Element>& elements) {
  std::vector<Element> result;
  for (std::size_t k = 0; k < elements.size(); k += 2) result.push_back(elements[k]);
  for (std::size_t k = elements.size() / 2; k > 0; --k) result.push_back(elements[2 * k - 1]);
  elements = std::move(result);
}

// Leaves elements as they are, or puts them in order, in the opposite order, up and down again, or
// in order but for two.
template <class Element, class Before>
void shape(Random& random, std::vector<Element>& elements, Before before) {
  const std::size_t form = pick(random, 0, 6);
  if (form < 3 || elements.empty()) return;
  std::sort(elements.begin(), elements.end(), before);
  if (form == 4) std::reverse(elements.begin(), elements.end());
  if (form == 5) pipe(elements);
  const std::size_t last = elements.size() - 1;
  if (form == 6) std::swap(elements[pick(random, 0, last)], elements[pick(random, 0, last)]);
}

// An order for the sorted shapes, which must have one: NaNs come first in it.
template <class T>
bool nan_first(T a, T b) {
  return a < b || (a != a && b == b);
}

template <class T>
BasedArray<T> pick_array(Random& random, std::size_t longest) {
  BasedArray<T> array;
  array.lower = static_cast<std::int32_t>(pick(random, 0, 10)) - 5;
  array.values = pick_numbers<T>(random, pick(random, 0, longest));
  shape(random, array.values, nan_first<T>);
  return array;
}

// An order array as callers prepare it: each element is its own index.
inline BasedArray<std::int32_t> identity(std::int32_t lower, std::size_t count) {
  BasedArray<std::int32_t> order{lower, std::vector<std::int32_t>(count)};
  std::int64_t index = lower;
  for (std::int32_t& element : order.values) element = static_cast<std::int32_t>(index++);
  return order;
}

}  // namespace kw::sort
