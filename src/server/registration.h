// Registering the library's classes with the host.
#pragma once

#include <string_view>

#include "platform/registry.h"

namespace kw::server {

// Records all classes as served by the library file `library`, or removes them.
void register_library(std::string_view library, platform::RegistryScope scope);
void unregister_library(platform::RegistryScope scope);

}  // namespace kw::server
