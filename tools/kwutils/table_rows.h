// The table of an entity, cut into cells.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tool/entity_store.h"

namespace kw::tool {

using TableRow = std::vector<std::u16string>;

// The rows of the table of an entity; nothing where there is no such entity. A row is a line, or
// what stands in a line up to the word "<" that ends a row. Fails (exit status 3) where the library
// cannot reach the table, see exact_lookup.
std::optional<std::vector<TableRow>> read_table(const EntityFile& file, const std::string& id);

}  // namespace kw::tool
