// What the library takes over from the system when it is loaded, once for the whole process.
#pragma once

#include <array>
#include <optional>

namespace kw::platform {

// The characters of the bytes 80 to FF in one of the system's code pages; nothing for a page of
// several bytes a character, or one that does not agree with ASCII.
std::optional<std::array<char16_t, 128>> upper_half(unsigned page);

}  // namespace kw::platform
