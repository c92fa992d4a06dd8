// Arrays on which the scheme fails: a sort must fail at the same swap.
#include <gtest/gtest.h>

#include "reference/quicksort_scheme.h"
#include "reference/random_inputs.h"
#include "sort/agreement.h"
#include "sort/array_shapes.h"
#include "sort/numbers.h"

namespace kw::sort {
namespace {

using Integers = BasedArray<std::int32_t>;
using Values = std::vector<std::int32_t>;

std::int32_t sort_alone(Integers& values) {
  return number_of([&] { sort_numbers<Direction::ascending>(bounded(values)); });
}

std::int32_t sort_with_order(Integers& values, Integers& order) {
  return number_of([&] { sort_numbers<Direction::ascending>(bounded(values), bounded(order)); });
}

TEST(FailingSort, AnArrayWithoutElementsIsASubscriptError) {
  Integers empty{3, {}};
  EXPECT_EQ(sort_alone(empty), 9);
  EXPECT_EQ(number_of([] { sort_numbers<Direction::ascending>(Bounded<double>{}); }), 9);
}

TEST(FailingSort, BoundsWithoutASumAreAnOverflow) {
  Integers one{INT32_MAX, {7}};
  EXPECT_EQ(sort_alone(one), 6);
  Integers low{INT32_MIN, {2, 1}};
  EXPECT_EQ(sort_alone(low), 6);
}

TEST(FailingSort, OverflowInALaterRangeKeepsTheSwapsUntilThen) {
  // The two bounds have a sum, those of the upper half have none.
  Integers values{(1 << 30) - 4, {8, 7, 6, 5, 1, 2, 3, 4}};
  EXPECT_EQ(sort_alone(values), 6);
  EXPECT_EQ(values.values, (Values{4, 3, 2, 1, 5, 6, 7, 8}));
}

TEST(FailingSort, ValuesAreSwappedBeforeAMissingOrderElement) {
  Integers values{0, {3, 2, 1}};
  Integers order{0, {0, 1}};
  EXPECT_EQ(sort_with_order(values, order), 9);
  EXPECT_EQ(values.values, (Values{1, 2, 3}));
  EXPECT_EQ(order.values, (Values{0, 1}));
}

TEST(FailingSort, OneElementNeedsItsOrderElement) {
  Integers values{0, {3}};
  Integers order{1, {5}};
  EXPECT_EQ(sort_with_order(values, order), 9);
}

TEST(FailingSort, LongerOrderArraysKeepTheirOtherElements) {
  Integers values{0, {3, 1, 2}};
  Integers order{-1, {9, 0, 1, 2, 9}};
  EXPECT_EQ(sort_with_order(values, order), 0);
  EXPECT_EQ(order.values, (Values{9, 1, 2, 0, 9}));
}

// Every swap is undone at once, and a scan may run out of the array.
TEST(FailingSort, AnArrayThatIsItsOwnOrderArrayIsSwappedTwice) {
  const auto less = [](std::int32_t a, std::int32_t b) { return a < b; };
  reference::for_random_inputs(4, [&](Random& random) {
    const Integers values = pick_array<std::int32_t>(random, 40);
    Integers expected = values, sorted = values;
    const std::int32_t error = number_of([&] { reference::quicksort(expected, &expected, less); });
    ASSERT_EQ(sort_with_order(sorted, sorted), error);
    ASSERT_EQ(sorted.values, values.values);
  });
}

void expect_same_failure(const Integers& values, const Integers& order) {
  const auto less = [](std::int32_t a, std::int32_t b) { return a < b; };
  expect_agreement(
      values, order,
      [&](auto& array, auto& order_array) { reference::quicksort(array, &order_array, less); },
      [](auto& array, auto& order_array) {
        sort_numbers<Direction::ascending>(bounded(array), bounded(order_array));
      });
  expect_agreement(
      values, order, [&](auto& array, auto&) { reference::quicksort(array, nullptr, less); },
      [](auto& array, auto&) { sort_numbers<Direction::ascending>(bounded(array)); });
}

TEST(FailingSort, FailsAtTheSameSwapAsTheScheme) {
  reference::for_random_inputs(5, [](Random& random) {
    const Integers values = pick_array<std::int32_t>(random, 40);
    const auto moved = static_cast<std::int32_t>(pick(random, 0, 4)) - 2;
    const std::size_t count = pick(random, 0, values.values.size() + 2);
    ASSERT_NO_FATAL_FAILURE(expect_same_failure(values, identity(values.lower + moved, count)));
  });
}

TEST(FailingSort, OverflowsAtTheSameRangeAsTheScheme) {
  reference::for_random_inputs(6, [](Random& random) {
    Integers values = pick_array<std::int32_t>(random, 40);
    const std::int32_t bounds[] = {(1 << 30) - 50, -(1 << 30) - 50, INT32_MIN, INT32_MAX - 120};
    values.values.push_back(0);
    values.lower = bounds[pick(random, 0, 3)] + static_cast<std::int32_t>(pick(random, 0, 60));
    ASSERT_NO_FATAL_FAILURE(
        expect_same_failure(values, identity(values.lower, values.values.size())));
  });
}

}  // namespace
}  // namespace kw::sort
