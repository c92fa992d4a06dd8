// kw::Array: a caller's array variable (SAFEARRAY) of strings or numbers.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kwutils/automation.h"
#include "kwutils/string.h"

namespace kw {

// What all element kinds share. Bounds are those of the one dimension that the library's arrays
// have; an array of more dimensions can be redimensioned, but not read.
class ArrayBase {
 public:
  ArrayBase(const ArrayBase&) = delete;
  ArrayBase& operator=(const ArrayBase&) = delete;
  ~ArrayBase();

  // False for an array that was never dimensioned, or erased. An array without elements is
  // dimensioned.
  bool dimensioned() const noexcept { return array_ != nullptr && array_->cDims != 0; }
  // Bounds of the first dimension. Error 9 (subscript) when never dimensioned.
  std::int32_t lower() const;
  std::int32_t upper() const;
  // Number of elements; 0 when never dimensioned.
  std::size_t size() const noexcept;

  // The array itself, still owned here; null when never dimensioned.
  SAFEARRAY* get() const noexcept { return array_; }
  // Gives the array away (SafeArrayDestroy frees it); this one is then never dimensioned.
  SAFEARRAY* release() noexcept { return std::exchange(array_, nullptr); }

 protected:
  ArrayBase() noexcept = default;
  ArrayBase(ArrayBase&& other) noexcept : array_(std::exchange(other.array_, nullptr)) {}
  void swap(ArrayBase& other) noexcept { std::swap(array_, other.array_); }

  // Error 9 when `index` is no element, 13 when the array holds another kind of element.
  void* element(std::int32_t index, VARTYPE kind, std::size_t width) const;
  void* data(VARTYPE kind, std::size_t width) const;
  void create(VARTYPE kind, std::int32_t lower, std::int64_t upper);
  void create_preserving(VARTYPE kind, std::int32_t lower, std::int64_t upper);
  // Whether a caller may still give the array other bounds; error 10 when it is fixed or locked.
  void check_resizable() const;
  void check_kind(VARTYPE kind, std::size_t width) const;
  static SAFEARRAY* make(VARTYPE kind, std::int32_t lower, std::size_t count);
  void replace(SAFEARRAY* array) noexcept;

  SAFEARRAY* array_ = nullptr;
};

template <class T>
inline constexpr VARTYPE kElementKind = kVtEmpty;
template <>
inline constexpr VARTYPE kElementKind<String> = kVtBstr;
template <>
inline constexpr VARTYPE kElementKind<std::int16_t> = kVtI2;
template <>
inline constexpr VARTYPE kElementKind<std::int32_t> = kVtI4;
template <>
inline constexpr VARTYPE kElementKind<float> = kVtR4;
template <>
inline constexpr VARTYPE kElementKind<double> = kVtR8;

// An array with bounds of its own. T is String, std::int16_t, std::int32_t, float or double.
//
//   Array<String> fields;                    // never dimensioned
//   fields.redim(0, 2);                      // three empty texts
//   fields.at(1) = u"pump";                  // checked: error 9 outside the bounds
//   fields.redim_preserve(0, 3);             // one text more
//   fields.upper();                          // 3
//   for (String& field : fields.elements())  // unchecked, for inner loops
//
// A method that fills a caller's array gathers in a vector of its own and publishes once.
template <class T>
class Array : public ArrayBase {
  static_assert(kElementKind<T> != kVtEmpty, "arrays hold strings or numbers");

 public:
  Array() noexcept = default;
  Array(Array&&) noexcept = default;
  Array& operator=(Array&& other) noexcept {
    swap(other);
    return *this;
  }
  // An array from `lower` on that takes over the values. Error 7 when there is no memory for it.
  static Array of(std::int32_t lower, std::vector<T> values) {
    Array array;
    array.publish(lower, std::move(values));
    return array;
  }

  // Takes over an array; null is one that was never dimensioned.
  static Array attach(SAFEARRAY* array) noexcept {
    Array result;
    result.array_ = array;
    return result;
  }

  // The element `index`, counted as the array's own bounds do. Error 9 when there is none, 13 when
  // the array holds another kind.
  T& at(std::int32_t index) { return *static_cast<T*>(element(index, kElementKind<T>, sizeof(T))); }
  const T& at(std::int32_t index) const {
    return *static_cast<const T*>(element(index, kElementKind<T>, sizeof(T)));
  }
  // All elements, from the lower bound on. Empty when never dimensioned. Error 9 when the array has
  // several dimensions, 13 when it holds another kind.
  std::span<T> elements() { return {static_cast<T*>(data(kElementKind<T>, sizeof(T))), size()}; }
  std::span<const T> elements() const {
    return {static_cast<const T*>(data(kElementKind<T>, sizeof(T))), size()};
  }

  // New bounds, old contents dropped. Error 9 when `upper` is below `lower`, 10 when the array is
  // fixed or locked, 7 when there is no memory for it; the array is then unchanged.
  void redim(std::int32_t lower_bound, std::int64_t upper_bound) {
    create(kElementKind<T>, lower_bound, upper_bound);
  }
  // New upper bound, contents kept. The lower bound of a dimensioned array cannot change: error 9.
  // Other errors as for redim.
  void redim_preserve(std::int32_t lower_bound, std::int64_t upper_bound) {
    create_preserving(kElementKind<T>, lower_bound, upper_bound);
  }
  // Replaces the array by one of exactly these values, from `lower_bound` on; no values give an
  // empty array with bounds `lower_bound` to `lower_bound` - 1. Errors 7 and 10 as for redim.
  void publish(std::int32_t lower_bound, std::vector<T> values) {
    check_resizable();
    SAFEARRAY* array = make(kElementKind<T>, lower_bound, values.size());
    T* to = static_cast<T*>(array->pvData);
    for (T& value : values) *to++ = std::move(value);
    replace(array);
  }
};

static_assert(sizeof(Array<String>) == sizeof(SAFEARRAY*));

}  // namespace kw
