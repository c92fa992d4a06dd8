// The type library in a library's file, and its entries in the system's registry.
//
// This header is apart from kwutils/automation.h: its implementation works with the system's own
// declarations, which cannot be seen beside the library's.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "kwutils/automation_interfaces.h"

namespace kw::platform {

struct TypeLibraryId {
  GUID id;
  std::uint16_t major;
  std::uint16_t minor;
  LCID locale;
};

// Nothing when the file carries no type library.
std::optional<TypeLibraryId> type_library_of(const std::u16string& file) noexcept;

// Where the registry of classes names the type library's file for this program's bitness.
std::u16string type_library_file_key(const TypeLibraryId& library);

// Records the type library and its interfaces for this program's bitness, or removes them; the
// system's status.
HRESULT register_type_library(const std::u16string& file, bool for_user_only) noexcept;
HRESULT unregister_type_library(const TypeLibraryId& library, bool for_user_only) noexcept;

// The type information of an interface; the system's status.
HRESULT interface_information(const std::u16string& file, const GUID& interface_id,
                              ITypeInfo** info) noexcept;

}  // namespace kw::platform
