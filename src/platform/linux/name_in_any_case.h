// File names whose last part is matched without regard to case, as Windows does.
#pragma once

#include <string>
#include <string_view>

namespace kw::platform {

// The name of the file that `name` means: `name` itself where something bears it exactly, else with
// the last part as the folder spells it (of several spellings the first by code unit), else `name`.
std::u16string name_in_any_case(std::u16string_view name);

}  // namespace kw::platform
