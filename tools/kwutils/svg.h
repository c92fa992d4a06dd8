// A table of numbers as a drawing.
#pragma once

#include <string>

#include "tool/number_table.h"

namespace kw::tool {

// A whole SVG document: the lines, both axes with marks, and the title.
std::string svg(const NumberTable& table, const std::string& title);

}  // namespace kw::tool
