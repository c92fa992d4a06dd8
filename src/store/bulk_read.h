// All entities of one type at once.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/array.h"
#include "kwutils/collection.h"
#include "store/entity_reader.h"

namespace kw::store {

// Each of these throws what opening the file throws. Where the result is a bool it is true when the
// end of the file was reached; a failure on the way there gives false, and what was gathered stays.

// `buffer` gets bounds 0 to the number of entities, element 0 empty; while and after the file could
// not be opened, 0 to `buffer_size`. Error 9 for a negative one.
bool entities_into_array(std::u16string_view file, std::u16string_view token, Tables tables,
                         SixLetters header, Array<String>& buffer, std::int32_t buffer_size);

enum class Keys { none, identifiers };

// Adds the entities that have a text to `items`. Under their identifiers, the value of the item
// "id" of the first line, where keys are asked for: of several with one identifier the first one.
bool entities_into(std::u16string_view file, std::u16string_view token, Keys keys,
                   const Collection& items);

// Adds the entities, without their tables, under their identifiers; the first one of each.
void entities_without_tables_into(std::u16string_view file, std::u16string_view token,
                                  const Collection& items);

// Adds each identifier once, under itself. An entity without one adds nothing.
void identifiers_into(std::u16string_view file, std::u16string_view token, const Collection& ids);

// Adds the entities whose identifiers are keys of `wanted`, under these; the first one of each. A
// failure once the file is open is thrown as error 10001 from `source`, with that failure's text.
void wanted_entities_into(std::u16string_view file, std::u16string_view token, Tables tables,
                          const Collection& wanted, const Collection& items,
                          std::string_view source);

}  // namespace kw::store
