// What kind of object a caller handed in.
#pragma once

#include "kwutils/object.h"

namespace kw::entry {

// Both are false for no object.
bool is_text_box(const Object& object) noexcept;
bool is_form(const Object& object) noexcept;

}  // namespace kw::entry
