// The password database's entry of the real user: never the environment, which anybody can set.
#pragma once

#include <optional>
#include <string>

namespace kw::platform {

struct PasswordEntry {
  std::string name;
  std::string home;
};

std::optional<PasswordEntry> password_entry();

}  // namespace kw::platform
