// Whether somebody is watching, and how much they can see.
#pragma once

#include <cstdio>

namespace kw::platform {

// Whether what is written to the stream appears on a terminal.
bool is_terminal(std::FILE* stream) noexcept;

// How many characters fit into one of its lines; 80 where that cannot be told.
int terminal_width(std::FILE* stream) noexcept;

}  // namespace kw::platform
