#include "platform/user.h"

#include "base/unicode.h"
#include "platform/host_functions.h"
#include "platform/linux/password_entry.h"

namespace kw::platform {

std::optional<std::u16string> user_name() {
  const HostFunctions& host = host_functions();
  if (host.user_name != nullptr) {
    const BSTR name = host.user_name(host.context);
    if (name == nullptr) return std::nullopt;
    std::u16string result(name, SysStringLen(name));
    SysFreeString(name);
    return result;
  }
  const auto entry = password_entry();
  if (!entry) return std::nullopt;
  return from_utf8(entry->name);
}

}  // namespace kw::platform
