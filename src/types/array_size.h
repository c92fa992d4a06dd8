// How large an array may be.
#pragma once

#include <cstdint>

#include "kwutils/automation.h"

namespace kw {

// Whether an array of `count` elements can be asked for. The system's functions count its bytes in
// 32 bits, and not every system's notice when those are too few.
constexpr bool array_fits(VARTYPE element, std::uint64_t count) {
  constexpr auto width = [](VARTYPE kind) -> std::uint64_t {
    switch (kind) {
      case kVtI2:
        return 2;
      case kVtI4:
      case kVtR4:
        return 4;
      case kVtR8:
        return 8;
      case kVtBstr:
        return sizeof(BSTR);
      default:
        return sizeof(VARIANT);
    }
  };
  return count <= INT32_MAX && count * width(element) <= UINT32_MAX;
}

}  // namespace kw
