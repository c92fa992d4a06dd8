// Sorts of numbers, with or without an order array.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "sort/block_scheme.h"
#include "sort/bounded.h"
#include "sort/checked_scheme.h"
#include "sort/compare.h"
#include "sort/counting_sort.h"
#include "sort/number_survey.h"
#include "sort/quick_numbers.h"
#include "sort/radix_sort.h"
#include "sort/work_array.h"

namespace kw::sort {

// From so many numbers on a radix sort is faster than a quicksort.
template <class T>
inline constexpr std::size_t kRadixFrom = 32 * sizeof(T);

// From so many 16-bit numbers on the counts of all values pay.
inline constexpr std::size_t kCountingFrom = 16384;

// Sorts numbers that are already in order, or in the opposite order; false for all others, most
// often after a few of them.
template <Direction kDirection, class T>
bool sort_presorted(T* numbers, std::size_t count) {
  const NumberOrder<kDirection> before;
  T* const end = numbers + count;
  if (std::is_sorted(numbers, end, before)) return true;
  if (!std::is_sorted(numbers, end, [before](T a, T b) { return before(b, a); })) return false;
  std::reverse(numbers, end);
  return true;
}

template <Direction kDirection>
bool sort_by_counting(std::int16_t* numbers, std::size_t count) {
  const WorkArray<std::uint32_t> counts(kSixteenBitValues);
  if (counts) counting_sort<kDirection>(numbers, count, counts.data());
  return static_cast<bool>(counts);
}

template <Direction kDirection, class T>
bool sort_by_radix(T* numbers, std::size_t count, const NumberSurvey<T>& survey) {
  const WorkArray<T> work(count);
  const int high = static_cast<int>(std::bit_width(survey.varying));
  if (work) RadixSort<kDirection, T>(numbers, work.data(), count, high).finish();
  return static_cast<bool>(work);
}

// With working memory; false, and nothing changed, when there is none.
template <Direction kDirection, class T>
bool sort_many(T* numbers, std::size_t count, const NumberSurvey<T>& survey) {
  if constexpr (sizeof(T) == 2)
    if (count >= kCountingFrom) return sort_by_counting<kDirection>(numbers, count);
  return sort_by_radix<kDirection>(numbers, count, survey);
}

// Sorts numbers of which every correct order is the same.
template <Direction kDirection, class T>
void sort_in_one_order(T* numbers, std::size_t count, const NumberSurvey<T>& survey) {
  if (sort_presorted<kDirection>(numbers, count)) return;
  if (count >= kRadixFrom<T> && sort_many<kDirection>(numbers, count, survey)) return;
  quick_sort<kDirection>(numbers, count);
}

// Sorts as the scheme does: see checked_scheme.h for its errors.
template <Direction kDirection, class T>
void sort_numbers(const Bounded<T>& values) {
  if (!can_sort(values)) return checked_scheme(values, nullptr, NumberOrder<kDirection>{});
  const NumberSurvey<T> survey = survey_numbers(values.data, values.size());
  if (survey.one_order())
    sort_in_one_order<kDirection>(values.data, values.size(), survey);
  else
    block_scheme<NumberOrder<kDirection>>(make_rows(values.data), values.size(), values.lower);
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
