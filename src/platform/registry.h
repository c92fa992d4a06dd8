// The host's registry of classes: which library serves a class, by name and by identifier.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "kwutils/automation.h"

namespace kw::platform {

struct RegisteredClass {
  std::string_view name;  // programmatic: "kwUtils.clsParse"
  GUID class_id;
  std::string_view help;
};

enum class RegistryScope { user, system };

// Records the classes as served by the library file `library` (an absolute native path), or removes
// them. Entries of other libraries' classes stay as they are. Errors of the file service, with the
// registry's file name.
void register_classes(std::span<const RegisteredClass> classes, std::string_view library,
                      RegistryScope scope);
void unregister_classes(std::span<const RegisteredClass> classes, RegistryScope scope);

// Whose registry the library's own entry points write: the machine's on Windows, where who installs
// has the rights to; the user's on Linux.
RegistryScope own_scope() noexcept;

struct ClassServer {
  GUID class_id;
  std::string library;  // its file; empty where the system itself finds and loads it (Windows)
};

// Who serves a class, by programmatic name (any case) or by identifier, with or without braces. The
// user's own registry is looked at first, then the system's. Nothing when neither knows it.
std::optional<ClassServer> find_class_server(std::u16string_view name);

// The path of the file that this code was loaded from (UTF-8): the automation library's, or the
// program's own where the library is linked in.
std::string own_module_path();

}  // namespace kw::platform
