// Positions that are held in 16 bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "kwutils/error.h"

namespace kw::text {

// Error 6 (overflow) when the position of the character at `index` (counted from 0) does not fit:
// positions count from 1.
inline void check_position16(std::size_t index) {
  constexpr std::size_t kLast = std::numeric_limits<std::int16_t>::max();
  if (index >= kLast) throw Error(ErrorNumber::overflow);
}

}  // namespace kw::text
