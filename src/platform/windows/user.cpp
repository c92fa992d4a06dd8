#include "platform/user.h"

#include <string>

#include "base/code_page.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

// The longest name that the system gives, and its NUL.
constexpr DWORD kCapacity = 257;

}  // namespace

std::optional<std::u16string> system_user_name() {
  char name[kCapacity];
  DWORD size = kCapacity;
  if (!GetUserNameA(name, &size) || size == 0) return std::nullopt;
  return widen({name, size - 1});
}

}  // namespace kw::platform
