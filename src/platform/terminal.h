// The standard streams: what goes through them, whether somebody is watching, and how much they can
// see.
#pragma once

#include <cstdio>

namespace kw::platform {

// Has the standard streams pass every byte as it is, and a terminal show what is written as UTF-8,
// until the program ends. To be called before anything is read or written. On Linux it is so
// anyway.
void use_plain_streams() noexcept;

// Whether what is written to the stream appears on a terminal.
bool is_terminal(std::FILE* stream) noexcept;

// How many characters fit into one of its lines; 80 where that cannot be told.
int terminal_width(std::FILE* stream) noexcept;

}  // namespace kw::platform
