// Reads the fields of a case. Whatever is not as the format wants it is thrown as a Malformed that
// names the field.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

#include "json_text.h"

namespace kw::cases {

struct Malformed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// `where` names the object in messages. Every field must be one of `known`.
void check_fields(const Json& object, const std::string& where,
                  std::initializer_list<std::string_view> known);

// Null where there is no such field, or it holds null.
const Json* optional_field(const Json& object, const char* name);
// An empty object or list where there is none.
const Json& object_field(const Json& object, const char* name);
const Json& list_field(const Json& object, const char* name);
const Json& required_field(const Json& object, const char* name);
std::string text_field(const Json& object, const char* name);
bool flag_field(const Json& object, const char* name);

// `what` names the value in messages.
std::u16string text_of(const Json& value, const std::string& what);
std::int64_t whole_number(const Json& value, const std::string& what, std::int64_t lowest,
                          std::int64_t highest);
template <class T>
T whole_number(const Json& value, const std::string& what) {
  using Limits = std::numeric_limits<T>;
  return static_cast<T>(whole_number(value, what, Limits::min(), Limits::max()));
}

}  // namespace kw::cases
