#include "platform/user.h"

#include "platform/host_functions.h"

namespace kw::platform {

std::optional<std::u16string> user_name() {
  const HostFunctions& host = host_functions();
  if (host.user_name == nullptr) return system_user_name();
  const BSTR name = host.user_name(host.context);
  if (name == nullptr) return std::nullopt;
  std::u16string result(name, SysStringLen(name));
  SysFreeString(name);
  return result;
}

}  // namespace kw::platform
