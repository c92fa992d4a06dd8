// Changes of type that need no object.
#pragma once

#include "kwutils/automation.h"

namespace kw::automation {

// Numbers, booleans and texts among each other; Empty counts as 0 and "". `source` is a plain
// value, neither a reference nor an array, of another kind than the wanted one. `result` is empty
// before and stays so on failure; on success it is a value of its own.
//
// kTypeMismatch: one of the kinds has no part in this, or a text is no number; kOverflow: the
// number does not fit.
HRESULT change_to_text(const VARIANT& source, std::uint16_t flags, VARIANT* result);
HRESULT change_to_number(const VARIANT& source, VARTYPE kind, VARIANT* result);

}  // namespace kw::automation
