// What the system reads out of a library's type library, as plain texts and numbers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kw::testing {

struct TypeParameter {
  std::string name;
  std::string type;  // "BSTR*", "SAFEARRAY(long)*", "_Collection**"
  bool optional = false;
  bool has_default = false;
  std::int64_t default_value = 0;
};

struct TypeMethod {
  std::string name;
  std::string help;
  std::int32_t id = 0;
  int slot = 0;
  std::vector<TypeParameter> parameters;
};

struct TypeEntry {
  std::string name;
  std::string id;    // "{...}"
  std::string kind;  // "interface", "class", "enum", "record", "alias"
  std::string help;
  int major = 0;
  int minor = 0;
  bool hidden = false;
  std::vector<TypeMethod> methods;   // of an interface: its own
  std::vector<std::string> members;  // of an enumeration or a record; of a class: its interfaces
  std::vector<std::int32_t> values;  // of an enumeration
};

struct TypeLibrary {
  std::string id;
  int major = 0;
  int minor = 0;
  std::uint32_t locale = 0;
  std::vector<TypeEntry> entries;

  const TypeEntry* find(const std::string& name) const {
    for (const TypeEntry& entry : entries)
      if (entry.name == name) return &entry;
    return nullptr;
  }
};

// Throws std::runtime_error where the file carries no type library.
TypeLibrary read_type_library(const char* file);

}  // namespace kw::testing
