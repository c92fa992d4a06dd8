// One run of the tool.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "tool/exit_code.h"

namespace kw::tool {

// Carries out a command line, given without the program's name. Answers go to `out`, messages to
// `err`.
ExitCode run_tool(std::vector<std::string> words, std::FILE* out, std::FILE* err);

}  // namespace kw::tool
