// Many entities of one type removed or replaced in one rewrite.
#pragma once

#include <string_view>

#include "kwutils/collection.h"

namespace kw::store {

// An entity's identifier is here the token behind the type word or, where that is "id", the one
// behind it. Each of these rewrites `file`, which is created when it is missing.

// Leaves out the first entity of each identifier that is a key of `identifiers`, and removes that
// key.
void remove_entities(std::u16string_view file, std::u16string_view token,
                     const Collection& identifiers);

// Puts the item under its key in the place of the first entity of that identifier and removes the
// key; the items that are left then follow at the end, in their order.
void write_entities(std::u16string_view file, std::u16string_view token,
                    const Collection& entities);

}  // namespace kw::store
