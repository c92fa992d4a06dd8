// Arithmetic of 32-bit whole numbers that fails where a result does not fit.
#pragma once

#include <cstdint>
#include <limits>

#include "kwutils/error.h"

namespace kw::entry {

// Error 6 (overflow) when it does not fit.
inline std::int32_t checked_int32(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max())
    throw Error(ErrorNumber::overflow);
  return static_cast<std::int32_t>(value);
}

}  // namespace kw::entry
