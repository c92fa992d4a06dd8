// Files that are read or written from one end to the other.
#pragma once

#include "platform/files.h"
#include "platform/windows/file_name.h"

namespace kw::platform {

std::unique_ptr<InputFile> open_system_input(FileName name);
std::unique_ptr<OutputFile> create_system_output(FileName name);

}  // namespace kw::platform
