// The passage from automation statuses to kw::Error.
#pragma once

#include "kwutils/automation.h"

namespace kw {

// Throws the Error that stands for a failed status: 0x800A0000 + n is error n, out of memory is
// 7, overflow 6, a bad index 9, a locked array 10, an unknown member 438, a type mismatch 13;
// anything else is an invalid argument (5).
[[noreturn]] void throw_status(HRESULT failure);

inline void check_status(HRESULT result) {
  if (result < 0) throw_status(result);
}

}  // namespace kw
