// The class factories: where callers get their objects from.
#pragma once

#include <span>

#include "frame/class_table.h"
#include "kwutils/automation.h"

namespace kw::frame {

// The factory of a class (IClassFactory, and the host's door). One per class, never destroyed; it
// counts only its locks.
IUnknown& factory_of(const ClassTable& table);

// Creates an object and asks it for an interface.
HRESULT create_object(const ClassTable& table, const GUID& iid, void** object) noexcept;

// Whether no object of the library is alive and no factory is locked.
bool nothing_is_held() noexcept;

}  // namespace kw::frame
