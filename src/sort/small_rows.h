// Few rows without equal keys, sorted without a branch per comparison.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "sort/key_flags.h"
#include "sort/rows.h"

namespace kw::sort {

inline constexpr std::ptrdiff_t kFewRows = kFlagGroup;

// Number of set bits among the lowest sixteen; not every processor that must run this counts bits.
inline unsigned count_bits(unsigned bits) {
  bits -= (bits >> 1) & 0x5555u;
  bits = (bits & 0x3333u) + ((bits >> 2) & 0x3333u);
  bits = (bits + (bits >> 4)) & 0x0F0Fu;
  return (bits + (bits >> 8)) & 0x1Fu;
}

// places[k] is the number of keys before keys[k], among `count` keys.
template <class Before, class Key>
void count_before_each(const Key* keys, std::ptrdiff_t count, std::uint8_t* places) {
  constexpr std::ptrdiff_t kVeryFew = 6;
  if (count <= kVeryFew) {
    for (std::ptrdiff_t k = 0; k < count; ++k) {
      unsigned place = 0;
      for (std::ptrdiff_t other = 0; other < count; ++other)
        place += Before{}(keys[other], keys[k]) ? 1u : 0u;
      places[k] = static_cast<std::uint8_t>(place);
    }
    return;
  }
  Key group[kFlagGroup] = {};
  for (std::ptrdiff_t k = 0; k < count; ++k) group[k] = keys[k];
  const unsigned all = (1u << count) - 1;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto flags = static_cast<unsigned>(group_flags<Before::kLeft>(group, group[k]));
    places[k] = static_cast<std::uint8_t>(count_bits(flags & all));
  }
}

// The place of each of `count` keys among them. False when two are equal, or when one is a NaN: not
// every place is somebody's then.
template <class Before, class Key>
bool find_places(const Key* keys, std::ptrdiff_t count, std::uint8_t* places) {
  count_before_each<Before>(keys, count, places);
  unsigned taken = 0;
  for (std::ptrdiff_t k = 0; k < count; ++k) taken |= 1u << places[k];
  return taken == (1u << count) - 1;
}

// Moves element k of `column` to places[k].
template <class T>
void move_to_places(T* column, std::ptrdiff_t count, const std::uint8_t* places) {
  std::array<T, kFewRows> moved;
  for (std::ptrdiff_t k = 0; k < count; ++k) moved[places[k]] = std::move(column[k]);
  for (std::ptrdiff_t k = 0; k < count; ++k)
    column[k] = std::move(moved[static_cast<std::size_t>(k)]);
}

// Sorts at most kFewRows rows from `first` on and gives true. False, and nothing changed, when
// their keys do not have exactly one order.
template <class Before, class Table>
bool sort_few_rows(const Table& rows, std::ptrdiff_t first, std::ptrdiff_t count) {
  std::uint8_t places[kFewRows];
  if (!find_places<Before>(rows.keys + first, count, places)) return false;
  rows.for_each_column([&](auto* column) { move_to_places(column + first, count, places); });
  return true;
}

}  // namespace kw::sort
