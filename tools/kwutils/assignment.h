// KEYWORD=VALUE, as a command line names an item.
#pragma once

#include <string>

#include "tool/item_line.h"

namespace kw::tool {

// Fails as wrong usage where it is no item, or its keyword none.
Item item_in(const std::string& assignment);

// The item as it would stand in a file: nm 'Outlet'. Fails as wrong usage where it could not stand
// there.
std::u16string written_item(const std::string& assignment);

}  // namespace kw::tool
