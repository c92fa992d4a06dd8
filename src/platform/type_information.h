// What the system's type information says about the library's interfaces. It comes from the type
// library that the library's file carries; where a file carries none (a program that the library is
// linked into, every file on Linux) there is none.
#pragma once

#include "kwutils/automation.h"

namespace kw::platform {

bool has_type_information() noexcept;

// kBadIndex where there is none, or none of that interface. The caller releases it.
HRESULT type_information(const GUID& interface_id, ITypeInfo** info) noexcept;

}  // namespace kw::platform
