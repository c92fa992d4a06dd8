// The caller's variable behind one parameter: how it goes into a call, and what it holds
// afterwards.
#pragma once

#include <string>
#include <vector>

#include "fake_objects.h"
#include "typed_value.h"

namespace kw::cases {

class CallerVariable {
 public:
  // Throws Malformed for a typed value that makes no sense.
  CallerVariable(const Json& typed, const MakeCollection& make_collection);

  // What the caller sends: the value, or a reference to the variable.
  VARIANT argument();
  // What differs from an entry of `args_after`; nothing for null.
  std::vector<std::string> differences(const Json& expected) const;

  // Throws Malformed for an entry of `args_after` that is neither null nor compares anything.
  static void check_expected_entry(const Json& expected);

 private:
  std::string held_difference(const Json& items) const;
  std::string properties_difference(const Json& expected) const;
  std::string log_difference(const Json& expected) const;

  Variant value_;                     // the variable
  Object held_;                       // a second reference to the collection or object passed in
  const FakeObject* fake_ = nullptr;  // held_, where it is an object of the case's own
  bool is_collection_ = false;
  bool by_reference_ = false;
  bool as_variant_ = false;
};

}  // namespace kw::cases
