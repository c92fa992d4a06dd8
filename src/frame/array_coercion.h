// Arrays of variants, as scripts have them, where a typed array is declared.
#pragma once

#include "frame/coercion.h"
#include "kwutils/automation.h"

namespace kw::frame {

// A new array of `element` kind with the bounds and converted values of the array that the argument
// holds; null when it holds none yet. Throws Refused when it holds anything else, or a value cannot
// be converted.
SAFEARRAY* typed_array(const VARIANT& argument, VARTYPE element);

// Puts the values of a typed array back into the caller's variable, as an array of variants with
// the same bounds. An array of fixed bounds, or one that the caller has locked, keeps its own
// place.
void write_array_back(VARIANT& argument, const SAFEARRAY* typed);

}  // namespace kw::frame
