#include "platform/user.h"

#include <string>

#include "base/code_page.h"
#include "platform/host_functions.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

// The longest name that the system gives, and its NUL.
constexpr DWORD kCapacity = 257;

}  // namespace

std::optional<std::u16string> user_name() {
  const HostFunctions& host = host_functions();
  if (host.user_name != nullptr) {
    const BSTR name = host.user_name(host.context);
    if (name == nullptr) return std::nullopt;
    std::u16string result(name, SysStringLen(name));
    SysFreeString(name);
    return result;
  }
  char name[kCapacity];
  DWORD size = kCapacity;
  if (!GetUserNameA(name, &size) || size == 0) return std::nullopt;
  return widen({name, size - 1});
}

}  // namespace kw::platform
