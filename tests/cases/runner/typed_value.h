// A typed value of a case as the caller's variable: how it goes into a call, and what it holds
// afterwards.
#pragma once

#include <functional>
#include <string>

#include "json_text.h"
#include "kwutils/collection.h"
#include "kwutils/variant.h"

namespace kw::cases {

// Makes an empty collection of the library under test.
using MakeCollection = std::function<Object()>;

class CallerVariable {
 public:
  // Throws std::runtime_error for a typed value that makes no sense.
  CallerVariable(const Json& typed, const MakeCollection& make_collection);

  // What the caller sends: the value, or a reference to the variable.
  VARIANT argument();
  // What differs from the expected typed value; "" when nothing does.
  std::string difference(const Json& expected) const;

 private:
  Variant value_;  // the variable
  Object held_;    // a second reference to a collection or object passed in
  bool by_reference_ = false;
  bool as_variant_ = false;
};

// What differs between a value and a plain or typed expectation; "" when nothing does.
std::string value_difference(const VARIANT& got, const Json& expected);
std::string described(const VARIANT& value);

}  // namespace kw::cases
