// How much memory the library holds: what its code takes from the heap, texts apart, which are
// taken by the automation library.
#pragma once

#include <cstddef>

namespace kw::store {

// Begins to count afresh from what is held now.
void restart_memory_peak() noexcept;

// The most that was held at once since then, beyond what was held then.
std::size_t memory_peak() noexcept;

}  // namespace kw::store
