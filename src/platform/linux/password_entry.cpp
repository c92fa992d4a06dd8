#include "platform/linux/password_entry.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace kw::platform {

std::optional<PasswordEntry> password_entry() {
  std::vector<char> buffer(1024);
  passwd entry = {};
  passwd* found = nullptr;
  while (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
    buffer.resize(buffer.size() * 2);
  if (found == nullptr) return std::nullopt;
  return PasswordEntry{found->pw_name, found->pw_dir};
}

}  // namespace kw::platform
