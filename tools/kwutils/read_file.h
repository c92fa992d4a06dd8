// Whole files in memory.
#pragma once

#include <string>

#include "platform/files.h"

namespace kw::tool {

std::string read_whole(platform::InputFile& file);

// Errors as the file service's.
std::string read_file(const std::string& path);

// Standard input up to its end. Fails (exit status 3) when it cannot be read.
std::string read_standard_input();

// A file that a command names, "-" being standard input. Fails (exit status 3) when it cannot be
// read.
std::string read_text(const std::string& name);

// How messages name such a file.
std::string source_name(const std::string& name);

}  // namespace kw::tool
