// What a sort leaves behind, beside what the scheme leaves behind, bit for bit.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "reference/quicksort_scheme.h"
#include "sort/bounded.h"
#include "support/expect_error.h"

namespace kw::sort {

using reference::BasedArray;
using testing::number_of;

template <class T>
Bounded<T> bounded(BasedArray<T>& array) {
  return {array.values.data(), array.lower, array.upper()};
}

template <class T>
bool same_bits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0);
}

// scheme(values, order) and sort(values, order) get copies of the same arrays.
template <class T, class Scheme, class Sort>
void expect_agreement(const BasedArray<T>& values, const BasedArray<std::int32_t>& order,
                      Scheme scheme, Sort sort) {
  BasedArray<T> expected = values, sorted = values;
  BasedArray<std::int32_t> expected_order = order, sorted_order = order;
  const std::int32_t expected_error = number_of([&] { scheme(expected, expected_order); });
  ASSERT_EQ(number_of([&] { sort(sorted, sorted_order); }), expected_error);
  ASSERT_TRUE(same_bits(sorted.values, expected.values)) << "values, size " << values.values.size();
  ASSERT_TRUE(same_bits(sorted_order.values, expected_order.values))
      << "order array, size " << values.values.size() << ", lower bound " << values.lower;
}

}  // namespace kw::sort
