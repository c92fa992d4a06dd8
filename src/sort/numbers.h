// Sorts of numbers, with or without an order array.
#pragma once

#include <algorithm>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>

#include "sort/block_scheme.h"
#include "sort/bounded.h"
#include "sort/checked_scheme.h"
#include "sort/compare.h"
#include "sort/counting_sort.h"
#include "sort/long_radix_sort.h"
#include "sort/number_survey.h"
#include "sort/quick_numbers.h"
#include "sort/short_radix_sort.h"
#include "sort/work_array.h"

namespace kw::sort {

// From so many numbers on a radix sort is faster than a quicksort.
template <class T>
inline constexpr std::size_t kRadixFrom = 32 * sizeof(T);

// From so many 16-bit numbers on the counts of all values pay.
inline constexpr std::size_t kCountingFrom = 16384;

// Whether each number may stand before the next one: bool fits(number, next). Several are compared
// without a branch; most others are refused after the first few.
template <class T, class Fits>
bool all_fit(const T* numbers, std::size_t count, Fits fits) {
  constexpr std::size_t kGroup = 8;
  std::size_t k = 1;
  for (; k + kGroup <= count; k += kGroup) {
    unsigned bad = 0;
    for (std::size_t i = k; i < k + kGroup; ++i) bad |= fits(numbers[i - 1], numbers[i]) ? 0u : 1u;
    if (bad != 0) return false;
  }
  for (; k < count; ++k)
    if (!fits(numbers[k - 1], numbers[k])) return false;
  return true;
}

// Sorts numbers that are already in order, or in the opposite order; false for all others, most
// often after a few of them.
template <class T>
bool sort_presorted(T* numbers, std::size_t count) {
  if (all_fit(numbers, count, std::less_equal<>())) return true;
  if (!all_fit(numbers, count, std::greater_equal<>())) return false;
  std::reverse(numbers, numbers + count);
  return true;
}

inline bool sort_by_counting(std::int16_t* numbers, std::size_t count) {
  const WorkArray<std::uint32_t> counts(kSixteenBitValues);
  if (counts) counting_sort(numbers, count, counts.data());
  return static_cast<bool>(counts);
}

template <class T>
bool sort_by_radix(T* numbers, std::size_t count, Word<T> varying) {
  const WorkArray<T> work(count);
  if (!work) return false;
  if constexpr (sizeof(T) == 8)
    LongRadixSort<T>(numbers, work.data(), count, static_cast<int>(std::bit_width(varying)))
        .finish();
  else
    short_radix_sort(numbers, work.data(), count);
  return true;
}

// With working memory; false, and nothing changed, when there is none.
template <class T>
bool sort_many(T* numbers, std::size_t count, Word<T> varying) {
  if constexpr (sizeof(T) == 2)
    if (count >= kCountingFrom) return sort_by_counting(numbers, count);
  return sort_by_radix(numbers, count, varying);
}

// Sorts, ascending, numbers of which every correct order is the same; `varying`, the bits in which
// they differ, is looked at when there are 64 of them.
template <class T>
void sort_in_one_order(T* numbers, std::size_t count, Word<T> varying) {
  if (sort_presorted(numbers, count)) return;
  if (count <= kWidestNetwork) return sort_few_numbers(numbers, count);
  if (count >= kRadixFrom<T> && sort_many(numbers, count, varying)) return;
  quick_sort(numbers, count);
}

// Descending, one order is the other one backwards.
template <Direction kDirection, class T>
void sort_in_one_order(const Bounded<T>& values, Word<T> varying) {
  sort_in_one_order(values.data, values.size(), varying);
  if (kDirection == Direction::descending) std::reverse(values.data, values.data + values.size());
}

// Whole numbers have one order; only real ones are looked over.
template <Direction kDirection, std::integral T>
void sort_any_numbers(const Bounded<T>& values) {
  static_assert(sizeof(T) < 8);
  sort_in_one_order<kDirection>(values, Word<T>{0});
}

// Each number comes before the next one: no NaN, no equal ones, nothing to sort. False for most
// others after a few of them.
template <Direction kDirection, class T>
bool in_strict_order(const T* numbers, std::size_t count) {
  return all_fit(numbers, count, NumberOrder<kDirection>{});
}

template <Direction kDirection, std::floating_point T>
void sort_any_numbers(const Bounded<T>& values) {
  if (in_strict_order<kDirection>(values.data, values.size())) return;
  const NumberSurvey<T> survey = survey_numbers(values.data, values.size());
  if (survey.one_order())
    sort_in_one_order<kDirection>(values, survey.varying);
  else
    block_scheme<NumberOrder<kDirection>>(make_rows(values.data), values.size(), values.lower);
}

// Sorts as the scheme does: see checked_scheme.h for its errors.
template <Direction kDirection, class T>
void sort_numbers(const Bounded<T>& values) {
  if (can_sort(values))
    sort_any_numbers<kDirection>(values);
  else
    checked_scheme(values, nullptr, NumberOrder<kDirection>{});
}

// The same with an order array, which receives the same swaps.
template <Direction kDirection, class T>
void sort_numbers(const Bounded<T>& values, const Bounded<std::int32_t>& order) {
  if (!can_sort(values) || !covers(order, values))
    return checked_scheme(values, &order, NumberOrder<kDirection>{});
  block_scheme<NumberOrder<kDirection>>(
      make_rows(values.data, order.data + (std::int64_t{values.lower} - order.lower)),
      values.size(), values.lower);
}

}  // namespace kw::sort
