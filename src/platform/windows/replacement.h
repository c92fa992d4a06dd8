// The replacement of a file on this system.
#pragma once

#include "platform/files.h"
#include "platform/windows/file_name.h"

namespace kw::platform {

std::unique_ptr<ReplacementFile> create_system_replacement(FileName temporary, FileName target);

}  // namespace kw::platform
