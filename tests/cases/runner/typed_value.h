// Typed values of a case as variants.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "fields.h"
#include "kwutils/array.h"
#include "kwutils/variant.h"

namespace kw::cases {

// Makes an empty collection of the library under test.
using MakeCollection = std::function<Object()>;

// Throws Malformed for a typed value that makes no sense, a number that its kind cannot hold for
// example. An object is a FakeObject.
Variant value_of(const Json& typed, const MakeCollection& make_collection);

// Throws Malformed unless this is an object of the fields that typed values have.
void check_typed(const Json& typed);

// Throws Malformed for a value that nothing could ever be compared with: a plain one (text, number,
// true, false, null) or a typed one.
void check_expected(const Json& value);
// The same for the `items` of a collection.
void check_items(const Json& items);

double number_of(const Json& value);
template <class T>
T element_of(const Json& value) {
  if constexpr (std::is_same_v<T, String>)
    return String(std::u16string_view(text_of(value, "element")));
  else if constexpr (std::is_integral_v<T>)
    return whole_number<T>(value, "element");
  else
    return static_cast<T>(number_of(value));
}
template <>
float element_of<float>(const Json& value);

// Calls `visit` with a value of the element type that an array's `of` names.
template <class Visit>
auto with_element_type(const Json& typed, Visit visit) {
  const std::string of = text_field(typed, "of");
  if (of == "str") return visit(String());
  if (of == "i2") return visit(std::int16_t{});
  if (of == "i4") return visit(std::int32_t{});
  if (of == "r4") return visit(float{});
  if (of == "r8") return visit(double{});
  throw Malformed("unknown array element: " + of);
}

}  // namespace kw::cases
