// Callers' arrays as the sorts see them.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "kwutils/array.h"
#include "kwutils/error.h"
#include "kwutils/string.h"
#include "sort/bounded.h"

namespace kw::sort {

// What is moved when elements are swapped: numbers, and the pointers of strings.
template <class T>
struct Moved {
  using Type = T;
};
template <>
struct Moved<String> {
  using Type = BSTR;
};
template <class T>
using MovedType = typename Moved<T>::Type;

// An array that was never dimensioned has no elements here.
template <class T>
Bounded<MovedType<T>> bounded(Array<T>& array) {
  static_assert(sizeof(MovedType<T>) == sizeof(T) && std::is_standard_layout_v<T>);
  const auto elements = array.elements();
  if (elements.empty()) return {};
  return {reinterpret_cast<MovedType<T>*>(elements.data()), array.lower(), array.upper()};
}

template <class T>
Bounded<const MovedType<T>> bounded(const Array<T>& array) {
  const auto elements = array.elements();
  if (elements.empty()) return {};
  return {reinterpret_cast<const MovedType<T>*>(elements.data()), array.lower(), array.upper()};
}

// Reads the texts of strings.
struct StringReader {
  static std::u16string_view text(BSTR string) noexcept {
    return string == nullptr ? std::u16string_view()
                             : std::u16string_view(string, SysStringLen(string));
  }
};

}  // namespace kw::sort
