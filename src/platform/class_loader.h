// Loads the library that serves a class.
#pragma once

#include <string>

#include "kwutils/automation.h"

namespace kw::platform {

// The factory of a class in a library file (UTF-8 path), or of a class that the system finds where
// the path is empty (Windows). Error 429 with the library's name and the reason. The library stays
// loaded.
IUnknown* load_class_factory(const std::string& library, const GUID& class_id);

}  // namespace kw::platform
