// Sorting networks for few numbers: comparisons at fixed places, no branches.
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <utility>

namespace kw::sort {

struct Comparator {
  std::size_t low;
  std::size_t high;
};

// Visits the comparators of Batcher's odd-even merge sort of `width` places, a power of two.
template <class Visit>
constexpr void for_each_comparator(std::size_t width, Visit visit) {
  for (std::size_t merged = 1; merged < width; merged *= 2)
    for (std::size_t step = merged; step >= 1; step /= 2)
      for (std::size_t start = step % merged; start + step < width; start += 2 * step)
        for (std::size_t k = start; k < start + step && k + step < width; ++k)
          if (k / (2 * merged) == (k + step) / (2 * merged)) visit(Comparator{k, k + step});
}

constexpr std::size_t comparator_count(std::size_t width) {
  std::size_t count = 0;
  for_each_comparator(width, [&count](Comparator) { ++count; });
  return count;
}

template <std::size_t kWidth>
constexpr auto comparators() {
  std::array<Comparator, comparator_count(kWidth)> list = {};
  std::size_t count = 0;
  for_each_comparator(kWidth, [&](Comparator comparator) { list[count++] = comparator; });
  return list;
}

// Two conditions rather than one, so that compilers see a minimum and a maximum and no branch.
template <class T>
void put_in_order(T& low, T& high) {
  const T a = low;
  const T b = high;
  low = a < b ? a : b;
  high = b < a ? a : b;
}

template <class T, std::size_t kWidth, std::size_t... kAt>
void run_network(std::array<T, kWidth>& places, std::index_sequence<kAt...>) {
  constexpr auto kList = comparators<kWidth>();
  (put_in_order(places[kList[kAt].low], places[kList[kAt].high]), ...);
}

// What comes after every number, or with the last.
template <class T>
constexpr T last_of_all() {
  using Limits = std::numeric_limits<T>;
  return Limits::has_infinity ? Limits::infinity() : Limits::max();
}

// Sorts at most `kWidth` numbers, none of them a NaN, ascending.
template <std::size_t kWidth, class T>
void sort_by_network(T* numbers, std::size_t count) {
  std::array<T, kWidth> places;
  places.fill(last_of_all<T>());
  for (std::size_t k = 0; k < count; ++k) places[k] = numbers[k];
  run_network(places, std::make_index_sequence<comparator_count(kWidth)>{});
  for (std::size_t k = 0; k < count; ++k) numbers[k] = places[k];
}

inline constexpr std::size_t kWidestNetwork = 16;

template <class T>
void sort_few_numbers(T* numbers, std::size_t count) {
  if (count <= 4) return sort_by_network<4>(numbers, count);
  if (count <= 8) return sort_by_network<8>(numbers, count);
  sort_by_network<kWidestNetwork>(numbers, count);
}

}  // namespace kw::sort
