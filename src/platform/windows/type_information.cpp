#include "platform/type_information.h"

#include "base/unicode.h"
#include "platform/registry.h"
#include "platform/windows/system.h"
#include "platform/windows/type_library.h"

namespace kw::platform {
namespace {

HMODULE own_module() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const WCHAR*>(&own_module), &module);
  return module;
}

}  // namespace

bool has_type_information() noexcept {
  static const bool found =
      FindResourceW(own_module(), MAKEINTRESOURCEW(1), wide(u"TYPELIB")) != nullptr;
  return found;
}

HRESULT type_information(const GUID& interface_id, ITypeInfo** info) noexcept {
  *info = nullptr;
  if (!has_type_information()) return status::kBadIndex;
  try {
    return interface_information(from_utf8(own_module_path()), interface_id, info);
  } catch (...) {
    return status::kOutOfMemory;
  }
}

}  // namespace kw::platform
