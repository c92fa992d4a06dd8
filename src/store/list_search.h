// The searches that fill pick lists.
#pragma once

#include <string_view>

#include "store/entity_lister.h"

namespace kw::store {

// Lists each entity of the type, told by its opening record alone. `token` opens a block as it
// stands. Errors of opening and reading the file. The host has its turn after each opening record.
void list_entities(std::u16string_view file, std::u16string_view token, EntityLister& lister);

// Lists the parts of the entities of the type that the word `part_token` opens and its lower case
// closes: their words, joined by blanks, are taken for a record.
void list_parts(std::u16string_view file, std::u16string_view token, std::u16string_view part_token,
                EntityLister& lister);

}  // namespace kw::store
