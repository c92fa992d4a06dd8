// Whole files in memory.
#pragma once

#include <string>

#include "platform/files.h"

namespace kw::tool {

std::string read_whole(platform::InputFile& file);

// Errors as the file service's.
std::string read_file(const std::string& path);

}  // namespace kw::tool
