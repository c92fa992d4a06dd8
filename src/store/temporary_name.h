// The name of the temporary file in which the new content of an entity file is built.
#pragma once

#include <string>
#include <string_view>

namespace kw::store {

// The trimmed file name up to the first "." among its last five characters, then "tmp":
// "network.dat" gives "network.tmp". Without such a "." the name is "tmp" alone, in the current
// directory. Error 5 for a name of fewer than five characters.
std::u16string temporary_name(std::u16string_view file);

}  // namespace kw::store
