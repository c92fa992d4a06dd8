#include "platform/user.h"

#include "base/unicode.h"
#include "platform/linux/password_entry.h"

namespace kw::platform {

std::optional<std::u16string> system_user_name() {
  const auto entry = password_entry();
  if (!entry) return std::nullopt;
  return from_utf8(entry->name);
}

}  // namespace kw::platform
