// What differs between a value and what a case expects.
#pragma once

#include <string>

#include "json_text.h"
#include "kwutils/object.h"

namespace kw::cases {

// "" when the value is the plain or typed one expected. A plain number matches a number of any
// kind, null an empty variant.
std::string value_difference(const VARIANT& got, const Json& expected);

// "" when the collection holds these items in this order. An item's key must lead to that very
// item, without regard to case; for the key null nothing is asked: a collection does not tell which
// keys it has. Puts an item in and takes it out again.
std::string items_difference(const Object& collection, const Json& items);

std::string no_match(const std::string& expected, const std::string& got);
// A value for messages.
std::string described(const VARIANT& value);

}  // namespace kw::cases
