// Converts values between the kinds of automation.
#pragma once

#include "kwutils/automation.h"

namespace kw {

// Puts `from` as `kind` into `to`, which must be empty; truth values become "True" and "False". The
// status of a refused conversion; overflow also for what is no number where a whole one is wanted.
HRESULT change_type(VARIANT& to, const VARIANT& from, VARTYPE kind) noexcept;

}  // namespace kw
