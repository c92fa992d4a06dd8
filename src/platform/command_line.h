// What a program was started with.
#pragma once

#include <string>
#include <vector>

namespace kw::platform {

// The words behind the program's name, in UTF-8. `count` and `words` are those of main(), which on
// Windows lack every character that the code page lacks: there the system's own ones are taken.
std::vector<std::string> command_line(int count, const char* const* words);

}  // namespace kw::platform
