// Callers' arrays as the sorts see them.
#pragma once

#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>
#include <type_traits>

#include "kwutils/array.h"
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

template <class Moving, class T>
Bounded<Moving> bounded_elements(std::span<T> elements, const SAFEARRAY* array) {
  static_assert(sizeof(Moving) == sizeof(T) && std::is_standard_layout_v<T>);
  if (elements.empty()) return {};
  const std::int32_t lower = array->rgsabound[0].lLbound;
  const std::int64_t upper = std::int64_t{lower} + std::ssize(elements) - 1;
  return {reinterpret_cast<Moving*>(elements.data()), lower, static_cast<std::int32_t>(upper)};
}

// An array that was never dimensioned has no elements here.
template <class T>
Bounded<MovedType<T>> bounded(Array<T>& array) {
  return bounded_elements<MovedType<T>>(array.elements(), array.get());
}

template <class T>
Bounded<const MovedType<T>> bounded(const Array<T>& array) {
  return bounded_elements<const MovedType<T>>(array.elements(), array.get());
}

// Reads the texts of strings.
struct StringReader {
  static std::u16string_view text(BSTR string) noexcept {
    return string == nullptr ? std::u16string_view()
                             : std::u16string_view(string, SysStringLen(string));
  }
};

}  // namespace kw::sort
