// An open file of the system, as the code that is the same on every system sees it.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/windows/file_errors.h"
#include "platform/windows/file_name.h"
#include "platform/windows/system.h"

namespace kw::platform {

using NativeFile = Handle;
using SystemCode = DWORD;  // 0 when all went well

// Writes some of `bytes`, of which there are some; `count` is how many. Never 0 of them.
SystemCode write_some(const NativeFile& file, std::string_view bytes, std::size_t& count) noexcept;

// Returns when everything that was written is on the disk.
SystemCode sync_to_disk(const NativeFile& file) noexcept;

}  // namespace kw::platform
