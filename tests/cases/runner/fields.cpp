#include "fields.h"

#include <algorithm>
#include <cmath>

#include "base/unicode.h"

namespace kw::cases {

void check_fields(const Json& object, const std::string& where,
                  std::initializer_list<std::string_view> known) {
  if (!object.is_object()) throw Malformed(where + ": no JSON object");
  for (const auto& entry : object.items())
    if (std::find(known.begin(), known.end(), entry.key()) == known.end())
      throw Malformed(where + ": unknown field '" + entry.key() + "'");
}

const Json* optional_field(const Json& object, const char* name) {
  const auto found = object.find(name);
  return found == object.end() || found->is_null() ? nullptr : &*found;
}

const Json& object_field(const Json& object, const char* name) {
  static const Json none = Json::object();
  const Json* field = optional_field(object, name);
  if (field == nullptr) return none;
  if (!field->is_object()) throw Malformed(std::string(name) + ": no JSON object");
  return *field;
}

const Json& list_field(const Json& object, const char* name) {
  static const Json none = Json::array();
  const Json* field = optional_field(object, name);
  if (field == nullptr) return none;
  if (!field->is_array()) throw Malformed(std::string(name) + ": no list");
  return *field;
}

const Json& required_field(const Json& object, const char* name) {
  const auto found = object.find(name);
  if (found == object.end()) throw Malformed(std::string("field '") + name + "' is missing");
  return *found;
}

std::string text_field(const Json& object, const char* name) {
  return to_utf8(text_of(required_field(object, name), name));
}

bool flag_field(const Json& object, const char* name) {
  const Json* field = optional_field(object, name);
  if (field == nullptr) return false;
  if (!field->is_boolean()) throw Malformed(std::string(name) + ": neither true nor false");
  return field->get<bool>();
}

std::u16string text_of(const Json& value, const std::string& what) {
  if (!value.is_string()) throw Malformed(what + ": no text");
  return units(value);
}

std::int64_t whole_number(const Json& value, const std::string& what, std::int64_t lowest,
                          std::int64_t highest) {
  if (!value.is_number()) throw Malformed(what + ": no number");
  // Every whole number that is asked for is exact as a double.
  const double number = value.get<double>();
  const bool inside =
      number >= static_cast<double>(lowest) && number <= static_cast<double>(highest);
  if (!inside || number != std::floor(number))
    throw Malformed(what + ": " + value.dump() + " is no whole number from " +
                    std::to_string(lowest) + " to " + std::to_string(highest));
  return static_cast<std::int64_t>(number);
}

}  // namespace kw::cases
