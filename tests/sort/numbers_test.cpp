#include "sort/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "reference/quicksort_scheme.h"
#include "reference/random_inputs.h"
#include "sort/agreement.h"
#include "sort/array_shapes.h"
#include "sort/failing_memory.h"

namespace kw::sort {
namespace {

constexpr Direction kAscending = Direction::ascending;
constexpr Direction kDescending = Direction::descending;

template <Direction kDirection, class T>
void expect_numbers_agree(const BasedArray<T>& values, const BasedArray<std::int32_t>& order) {
  const auto scheme = [](auto& array, BasedArray<std::int32_t>* order_array) {
    reference::quicksort(array, order_array,
                         [](T a, T b) { return kDirection == kAscending ? a < b : a > b; });
  };
  expect_agreement(
      values, order, [&](auto& array, auto&) { scheme(array, nullptr); },
      [](auto& array, auto&) { sort_numbers<kDirection>(bounded(array)); });
  expect_agreement(
      values, order, [&](auto& array, auto& order_array) { scheme(array, &order_array); },
      [](auto& array, auto& order_array) {
        sort_numbers<kDirection>(bounded(array), bounded(order_array));
      });
}

template <class T>
void expect_agreement_both_ways(const BasedArray<T>& values) {
  const auto order = identity(values.lower, values.values.size());
  expect_numbers_agree<kAscending>(values, order);
  expect_numbers_agree<kDescending>(values, order);
}

template <class T>
class SortNumbers : public ::testing::Test {};

using Numbers = ::testing::Types<double, float, std::int16_t, std::int32_t>;
TYPED_TEST_SUITE(SortNumbers, Numbers, );

TYPED_TEST(SortNumbers, AgreesWithTheSchemeOnRandomArrays) {
  reference::for_random_inputs(1, [](Random& random) {
    ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(pick_array<TypeParam>(random, 300)));
  });
}

// Past every size at which another method takes over.
TYPED_TEST(SortNumbers, AgreesWithTheSchemeOnLongArrays) {
  Random random(2);
  for (std::size_t size : {1000u, 2000u, 10'000u, 20'000u, 40'000u})
    ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(
        BasedArray<TypeParam>{1, pick_numbers<TypeParam>(random, size)}));
}

TYPED_TEST(SortNumbers, AgreesWithTheSchemeOnAllShortArrays) {
  std::vector<TypeParam> alphabet = {-1, 0, 1};
  if constexpr (std::is_floating_point_v<TypeParam>)
    alphabet = {std::numeric_limits<TypeParam>::quiet_NaN(), 1, -TypeParam{0}, 0};
  for (std::size_t size = 0; size <= 6; ++size) {
    const auto arrays = static_cast<std::size_t>(std::pow(alphabet.size(), size));
    for (std::size_t number = 0; number < arrays; ++number) {
      BasedArray<TypeParam> array{static_cast<std::int32_t>(number % 11) - 5, {}};
      for (std::size_t rest = number; array.values.size() < size; rest /= alphabet.size())
        array.values.push_back(alphabet[rest % alphabet.size()]);
      ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(array));
    }
  }
}

TYPED_TEST(SortNumbers, AgreesWithTheSchemeWithoutWorkingMemory) {
  Random random(3);
  const NoWorkMemory none;
  for (int k = 0; k < 20; ++k)
    ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(pick_array<TypeParam>(random, 3000)));
  BasedArray<TypeParam> many{0, pick_numbers<TypeParam>(random, 20'000)};
  ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(many));
}

template <class T>
T number_near(T base, std::size_t steps) {
  if constexpr (std::is_floating_point_v<T>)
    return base * (1 + std::numeric_limits<T>::epsilon() * static_cast<T>(steps));
  else
    return static_cast<T>(base + static_cast<T>(steps % 50));
}

// Numbers that differ in their lowest bits only, or in their highest and lowest: what a radix sort
// by upper bits leaves to be done.
TYPED_TEST(SortNumbers, AgreesWithTheSchemeOnNumbersThatShareUpperBits) {
  Random random(4);
  for (std::size_t groups : {1u, 3u, 30u}) {
    BasedArray<TypeParam> array;
    for (int k = 0; k < 30'000; ++k)
      array.values.push_back(number_near(static_cast<TypeParam>(1000 * pick(random, 1, groups)),
                                         pick(random, 0, 5000)));
    ASSERT_NO_FATAL_FAILURE(expect_agreement_both_ways(array));
  }
}

// In the long form so many that their upper bits take another digit.
TEST(SortManyNumbers, SortsDoublesAsTheStandardSortDoes) {
  Random random(6);
  std::vector<double> values(reference::long_tests() ? 17'000'000 : 200'000);
  for (double& value : values) value = any_number<double>(random);
  std::vector<double> expected = values;
  std::sort(expected.begin(), expected.end());
  BasedArray<double> array{1, std::move(values)};
  sort_numbers<kAscending>(bounded(array));
  EXPECT_TRUE(same_bits(array.values, expected));
}

// Numbers whose greatest one is at the middle of every range that the scheme comes to.
template <class T>
std::vector<T> worst_case(std::size_t count) {
  std::vector<std::size_t> places(count);
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::vector<T> values(count);
  for (std::size_t size = count; size > 0; --size) {
    std::swap(places[(size - 1) / 2], places[size - 1]);
    values[places[size - 1]] = static_cast<T>(size);
  }
  return values;
}

TYPED_TEST(SortNumbers, SurvivesTheWorstCaseOfMiddlePivots) {
  expect_agreement_both_ways(BasedArray<TypeParam>{0, worst_case<TypeParam>(5'000)});
}

}  // namespace
}  // namespace kw::sort
