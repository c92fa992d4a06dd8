#include "platform/type_information.h"

namespace kw::platform {

bool has_type_information() noexcept { return false; }

HRESULT type_information(const GUID&, ITypeInfo** info) noexcept {
  *info = nullptr;
  return status::kBadIndex;
}

}  // namespace kw::platform
