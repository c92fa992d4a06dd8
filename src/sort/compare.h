// The orders that the sorts know.
#pragma once

#include <string_view>

#include "base/compare_text.h"
#include "sort/key_flags.h"

namespace kw::sort {

enum class Direction { ascending, descending };

// How texts compare: by code unit, or without regard to case.
enum class CompareMethod { binary, text };

// Whether one number comes before another. NaN comes before nothing and after nothing.
template <Direction kDirection>
struct NumberOrder {
  static constexpr bool kAscending = kDirection == Direction::ascending;
  // What stops neither scan of a partition but its own side: the numbers that belong there.
  static constexpr Flag kLeft = kAscending ? Flag::below_pivot : Flag::above_pivot;
  static constexpr Flag kRight = kAscending ? Flag::above_pivot : Flag::below_pivot;

  template <class T>
  T pivot(T value) const noexcept {
    return value;
  }
  template <class T>
  bool operator()(T a, T b) const noexcept {
    return kAscending ? a < b : b < a;
  }
};

using Ascending = NumberOrder<Direction::ascending>;
using Descending = NumberOrder<Direction::descending>;

// Whether one text comes before another. Reader::text(element) is the text of an array's element. A
// pivot is a view: the characters of an element stay where they are when the element is swapped.
template <class Reader>
struct TextOrder {
  Direction direction;
  CompareMethod method;

  template <class Element>
  std::u16string_view pivot(const Element& element) const noexcept {
    return Reader::text(element);
  }
  template <class Element>
  bool operator()(const Element& element, std::u16string_view pivot) const noexcept {
    return before(Reader::text(element), pivot);
  }
  template <class Element>
  bool operator()(std::u16string_view pivot, const Element& element) const noexcept {
    return before(pivot, Reader::text(element));
  }

 private:
  bool before(std::u16string_view a, std::u16string_view b) const noexcept {
    const int order = method == CompareMethod::binary ? compare_binary(a, b) : compare_text(a, b);
    return direction == Direction::ascending ? order < 0 : order > 0;
  }
};

}  // namespace kw::sort
