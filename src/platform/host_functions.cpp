#include "platform/host_functions.h"

#include <algorithm>
#include <cstring>

namespace kw {
namespace {

HostFunctions g_functions;

}  // namespace

void set_host(const HostFunctions& functions) noexcept {
  // A table of an earlier, shorter form leaves what it does not know of unset.
  HostFunctions taken;
  std::memcpy(static_cast<void*>(&taken), &functions,
              std::min<std::size_t>(functions.size, sizeof(HostFunctions)));
  taken.size = sizeof(HostFunctions);
  g_functions = taken;
}

namespace platform {

const HostFunctions& host_functions() noexcept { return g_functions; }

std::optional<std::u16string> host_text(BSTR (KW_STDCALL* HostFunctions::*function)(void*)) {
  const auto call = g_functions.*function;
  if (call == nullptr) return std::nullopt;
  const BSTR text = call(g_functions.context);
  std::u16string result(text != nullptr ? text : u"", text != nullptr ? SysStringLen(text) : 0);
  SysFreeString(text);
  return result;
}

}  // namespace platform
}  // namespace kw
