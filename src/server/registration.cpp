#include "server/registration.h"

#include <string>
#include <vector>

#include "server/class_list.h"

namespace kw::server {
namespace {

// Owns the programmatic names that the registered classes refer to.
struct Registration {
  Registration() {
    for (const frame::ClassTable* table : classes())
      names.push_back("kwUtils." + std::string(table->description().name));
    for (std::size_t i = 0; i < names.size(); ++i) {
      const auto& description = classes()[i]->description();
      entries.push_back({names[i], description.class_id, description.help});
    }
  }
  std::vector<std::string> names;
  std::vector<platform::RegisteredClass> entries;
};

}  // namespace

void register_library(std::string_view library, platform::RegistryScope scope) {
  platform::register_classes(Registration().entries, library, scope);
}

void unregister_library(platform::RegistryScope scope) {
  platform::unregister_classes(Registration().entries, scope);
}

}  // namespace kw::server
