// The kinds of value that cross the library's boundary, and what the type of a member function's
// parameter says about them.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "kwutils/array.h"
#include "kwutils/automation.h"
#include "kwutils/boolean.h"
#include "kwutils/collection.h"
#include "kwutils/object.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw::frame {

enum class Kind : std::uint8_t {
  none,
  text,
  int16,
  int32,
  single,
  real,
  boolean,
  variant,
  object,
  unknown,
  collection,
  text_array,
  int16_array,
  int32_array,
  single_array,
  real_array,
};

// kKind<T>: the kind of a native type. Wire<T>: what stands for it in a slot, by value.
template <class T>
struct Native;

template <Kind K, class W, VARTYPE V>
struct NativeAs {
  static constexpr Kind kind = K;
  using Wire = W;
  static constexpr VARTYPE vartype = V;
};

template <>
struct Native<String> : NativeAs<Kind::text, BSTR, kVtBstr> {};
template <>
struct Native<std::u16string_view> : NativeAs<Kind::text, BSTR, kVtBstr> {};
template <>
struct Native<std::int16_t> : NativeAs<Kind::int16, std::int16_t, kVtI2> {};
template <>
struct Native<std::int32_t> : NativeAs<Kind::int32, std::int32_t, kVtI4> {};
template <>
struct Native<float> : NativeAs<Kind::single, float, kVtR4> {};
template <>
struct Native<double> : NativeAs<Kind::real, double, kVtR8> {};
template <>
struct Native<Boolean> : NativeAs<Kind::boolean, VARIANT_BOOL, kVtBool> {};
template <>
struct Native<Variant> : NativeAs<Kind::variant, VARIANT, kVtVariant> {};
template <>
struct Native<Object> : NativeAs<Kind::object, IDispatch*, kVtDispatch> {};
template <>
struct Native<Unknown> : NativeAs<Kind::unknown, IUnknown*, kVtUnknown> {};
template <>
struct Native<Collection> : NativeAs<Kind::collection, IDispatch*, kVtDispatch> {};
template <>
struct Native<Array<String>> : NativeAs<Kind::text_array, SAFEARRAY*, kVtArray | kVtBstr> {};
template <>
struct Native<Array<std::int16_t>> : NativeAs<Kind::int16_array, SAFEARRAY*, kVtArray | kVtI2> {};
template <>
struct Native<Array<std::int32_t>> : NativeAs<Kind::int32_array, SAFEARRAY*, kVtArray | kVtI4> {};
template <>
struct Native<Array<float>> : NativeAs<Kind::single_array, SAFEARRAY*, kVtArray | kVtR4> {};
template <>
struct Native<Array<double>> : NativeAs<Kind::real_array, SAFEARRAY*, kVtArray | kVtR8> {};

template <class... T>
constexpr VARTYPE vartype_among(Kind kind) {
  VARTYPE result = kVtEmpty;
  ((result = Native<T>::kind == kind ? Native<T>::vartype : result), ...);
  return result;
}

// The kind of variant that holds a value of a kind; kVtEmpty for none.
constexpr VARTYPE vartype_of(Kind kind) {
  return vartype_among<String, std::int16_t, std::int32_t, float, double, Boolean, Variant, Object,
                       Unknown, Collection, Array<String>, Array<std::int16_t>,
                       Array<std::int32_t>, Array<float>, Array<double>>(kind);
}

// A reference parameter is passed by reference, anything else by value; a reference to const is
// passed by reference all the same, and not changed.
template <class P>
inline constexpr bool kByReference = std::is_lvalue_reference_v<P>;

template <class P>
using NativeOf = std::remove_cv_t<std::remove_reference_t<P>>;

template <class P>
using Wire = std::conditional_t<kByReference<P>, typename Native<NativeOf<P>>::Wire*,
                                typename Native<NativeOf<P>>::Wire>;

}  // namespace kw::frame
