// What a variant says, whether it holds the value or refers to it.
#pragma once

#include "kwutils/automation.h"

namespace kw::automation {

// Makes `view` the plain value of `source`: references, also those to a variant that is itself one,
// are followed. `view` owns nothing and must not be cleared. kInvalidArgument: a reference to
// nothing, or to a variant that refers to a further variant.
HRESULT view_contents(const VARIANT& source, VARIANT* view);

}  // namespace kw::automation
