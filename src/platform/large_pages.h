// Large pages for large pieces of memory.
#pragma once

#include <cstddef>

namespace kw::platform {

inline constexpr std::size_t kLargePage = std::size_t{1} << 21;

// Asks the system to back memory that has not been used yet with large pages, where it has them:
// memory that is new to the process costs a fault for each of its pages. `memory` begins a large
// page. Only a hint; nothing depends on it.
void prefer_large_pages(void* memory, std::size_t bytes) noexcept;

}  // namespace kw::platform
