// What differs between two texts, line by line.
#pragma once

#include <string>
#include <string_view>

namespace kw::tool {

// A unified diff with three lines of context; "" for equal texts. Lines end with LF and are shown
// with all their other bytes, CR included.
std::string unified_diff(std::string_view old_text, std::string_view new_text,
                         std::string_view old_name, std::string_view new_name);

}  // namespace kw::tool
