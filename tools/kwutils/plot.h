// A table of numbers as a drawing in characters.
#pragma once

#include <string>

#include "tool/number_table.h"

namespace kw::tool {

// Lines of at most `width` characters (UTF-8), `height` of them and two for the lower axis. Dots of
// Braille characters draw the lines.
std::string plot(const NumberTable& table, std::size_t width, std::size_t height);

}  // namespace kw::tool
