// What the system's error codes mean to a caller.
#pragma once

#include <cstdint>
#include <string>

#include "kwutils/error.h"
#include "platform/windows/file_name.h"

namespace kw::platform {

// The number for one of the system's codes; 57 for every code that has none of its own.
ErrorNumber error_number(std::uint32_t code) noexcept;

// Throws the error of `code` about the file `name` (UTF-8).
[[noreturn]] void throw_file_error(std::uint32_t code, const std::string& name);

// The same for a call that looks a name up: where the folder or the drive itself is missing, the
// error is 76, whatever the system called it.
[[noreturn]] void throw_lookup_error(std::uint32_t code, const FileName& name);

}  // namespace kw::platform
