// Sorts of texts, with or without an order array.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "sort/block_scheme.h"
#include "sort/bounded.h"
#include "sort/checked_scheme.h"
#include "sort/compare.h"
#include "sort/multikey_sort.h"
#include "sort/text_places.h"
#include "sort/work_array.h"

namespace kw::sort {

// Elements that are sorted themselves, for a MultikeySort by code unit.
template <class Reader, class Element>
struct ElementSource {
  using Item = Element;
  std::u16string_view text(Item element) const { return Reader::text(element); }
  char16_t fold(char16_t unit) const { return unit; }
  void equal(Item*, std::size_t) {}
};

// Texts that are equal by code unit cannot be told apart: no need to follow the scheme. False, and
// nothing changed, when there is no memory.
template <class Element, class Reader>
bool sort_by_code_unit(const Bounded<Element>& values, const TextOrder<Reader>& how) {
  const WorkArray<double> windows(values.size());
  if (!windows) return false;
  ElementSource<Reader, Element> source;
  MultikeySort(source, values.data, windows.data()).run(values.size());
  if (how.direction == Direction::descending)
    std::reverse(values.data, values.data + values.size());
  return true;
}

// Puts into each place of `column` what belongs there.
template <class T>
void move_to_places(T* column, std::size_t count, const TextPlaces& places, Direction direction) {
  T* const old = new (places.spare()) T[count];
  std::copy_n(column, count, old);
  for (std::size_t place = 0; place < count; ++place) {
    const bool ascending = direction == Direction::ascending;
    column[ascending ? place : count - 1 - place] = old[places.position(place)];
  }
}

// Sorts the columns by the places of their texts, as the scheme does.
template <class... Columns>
void arrange(const TextPlaces& places, std::size_t count, std::int32_t lower, Direction direction,
             Columns*... columns) {
  if (places.distinct()) return (move_to_places(columns, count, places, direction), ...);
  const auto rows = make_rows(places.ranks(), columns...);
  if (direction == Direction::ascending)
    block_scheme<Ascending>(rows, count, lower);
  else
    block_scheme<Descending>(rows, count, lower);
}

// Sorts as the scheme does: see checked_scheme.h for its errors. Elements are handles of texts that
// can be copied bit for bit.
template <class Element, class Reader>
void sort_texts(const Bounded<Element>& values, const TextOrder<Reader>& how) {
  static_assert(std::is_trivially_copyable_v<Element>);
  if (!can_sort(values)) return checked_scheme(values, nullptr, how);
  if (how.method == CompareMethod::binary && sort_by_code_unit(values, how)) return;
  TextPlaces places(values.size());
  if (!places) return checked_scheme(values, nullptr, how);
  places.find<Reader>(values.data, how.method);
  arrange(places, values.size(), values.lower, how.direction, values.data);
}

// The same with an order array, which receives the same swaps.
template <class Element, class Reader>
void sort_texts(const Bounded<Element>& values, const Bounded<std::int32_t>& order,
                const TextOrder<Reader>& how) {
  static_assert(std::is_trivially_copyable_v<Element>);
  if (!can_sort(values) || !covers(order, values)) return checked_scheme(values, &order, how);
  TextPlaces places(values.size());
  if (!places) return checked_scheme(values, &order, how);
  places.find<Reader>(values.data, how.method);
  arrange(places, values.size(), values.lower, how.direction, values.data,
          order.data + (std::int64_t{values.lower} - order.lower));
}

}  // namespace kw::sort
