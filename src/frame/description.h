// What a class tells about itself, once: everything that depends on its methods (slots, late-bound
// calls, interface definitions, documents, the command line) is made from these tables.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "frame/kind.h"

namespace kw::frame {

struct ObjectBase;
class Arguments;

// Late-bound members of the classes are numbered from here on.
inline constexpr DISPID kFirstMember = 0x60030000;

struct Parameter {
  std::string_view name;  // as published
  Kind kind = Kind::none;
  bool by_reference = false;
  bool optional = false;
  std::int32_t default_value = 0;  // of an optional parameter that is no variant
};

struct Method {
  std::string_view name;  // as published
  DISPID id = 0;
  std::string_view help;
  std::vector<Parameter> parameters;
  Kind result = Kind::none;
  void (*slot)() = nullptr;  // in the slot's own signature
  HRESULT (*invoke)(ObjectBase& self, Arguments& arguments, VARIANT* result) = nullptr;
};

struct Version {
  std::uint16_t major;
  std::uint16_t minor;
};

struct ClassDescription {
  std::string_view name;
  GUID class_id{};  // null for a class that only the library itself creates
  GUID interface_id{};
  Version version{};
  std::string_view help;
  std::uint8_t earlier_versions = 0;  // how many hidden aliases name earlier forms of the interface
  std::vector<Method> methods;        // in the order of their slots
};

// How a parameter is named where a method is described.
struct ParameterName {
  constexpr ParameterName(const char* published) : name(published) {}
  std::string_view name;
  bool optional = false;
  std::int32_t default_value = 0;
};

// A parameter that callers may leave out. A variant then holds the missing marker; any other kind
// holds `default_value` (true is -1).
constexpr ParameterName optional(const char* published, std::int32_t default_value = 0) {
  ParameterName result(published);
  result.optional = true;
  result.default_value = default_value;
  return result;
}

}  // namespace kw::frame
