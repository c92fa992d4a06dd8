// Rows: an array of keys and the arrays that are swapped along with it.
#pragma once

#include <cstddef>
#include <tuple>
#include <utility>

namespace kw::sort {

// Positions start at 0 in every array. Companions may be of any movable type; no two of the arrays
// share memory.
template <class Key, class... Companions>
struct Rows {
  Key* keys;
  std::tuple<Companions*...> companions;

  template <class Visit>
  void for_each_companion(Visit visit) const {
    std::apply([&](auto*... column) { (visit(column), ...); }, companions);
  }
  template <class Visit>
  void for_each_column(Visit visit) const {
    visit(keys);
    for_each_companion(visit);
  }

  void exchange(std::ptrdiff_t a, std::ptrdiff_t b) const {
    for_each_column([a, b](auto* column) { std::swap(column[a], column[b]); });
  }
  // Swaps row a + k with row b - k for each k below `count`; the two sides do not overlap.
  void exchange_mirrored(std::ptrdiff_t a, std::ptrdiff_t b, std::ptrdiff_t count) const {
    for_each_column([a, b, count](auto* column) {
      for (std::ptrdiff_t k = 0; k < count; ++k) std::swap(column[a + k], column[b - k]);
    });
  }
};

template <class Key, class... Companions>
Rows<Key, Companions...> make_rows(Key* keys, Companions*... companions) {
  return {keys, {companions...}};
}

}  // namespace kw::sort
