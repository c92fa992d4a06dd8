// One entity of a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "kwutils/string.h"
#include "store/item_search.h"

namespace kw::store {

// The text of the first entity of the type on whose first line the item has its value; "" when
// there is none. `position`: where the search begins, counted from 1; a position that cannot be
// gone to counts as 1. Throws what opening or reading the file throws.
String find_entity(std::u16string_view file, std::u16string_view token, const ItemSearch& item,
                   std::optional<std::int32_t> position);

// The text of the first entity of the type.
String first_entity(std::u16string_view file, std::u16string_view token);

// The text, up to its table, of the first entity of the type that opens on a candidate for `id`
// (see candidate.h).
String entity_without_table(std::u16string_view file, std::u16string_view token,
                            std::u16string_view id);

}  // namespace kw::store
