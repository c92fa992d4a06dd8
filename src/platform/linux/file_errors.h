// What the system's error codes mean to a caller.
#pragma once

#include <string>

#include "kwutils/error.h"
#include "platform/linux/file_name.h"

namespace kw::platform {

// The number for a code of errno; 57 for every code that has none of its own.
ErrorNumber error_number(int code) noexcept;

// Whether the code says that nothing of that name is there.
bool means_missing(int code) noexcept;

// Throws the error of `code` about the file `name` (UTF-8).
[[noreturn]] void throw_file_error(int code, const std::string& name);

// The same for a call that looks a name up: where the folder itself is missing, the error is 76.
[[noreturn]] void throw_lookup_error(int code, const FileName& name);

}  // namespace kw::platform
