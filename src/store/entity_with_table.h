// The line of an entity whose text leaves room for a table.
#pragma once

#include <string_view>

#include "kwutils/array.h"
#include "kwutils/string.h"
#include "store/replace_entity.h"

namespace kw::store {

// Writes the rows of a table.
using WriteRows = std::function<void(Rewrite& to)>;

// The line of `entity` with the rows in the place of its first "??"; without "??" there are no
// rows. The entity's text must stay until the line is written.
WriteEntityLine line_with_table(const TypeWord& type, std::u16string_view entity, WriteRows rows);
// The line of `entity` as it is.
WriteEntityLine entity_line(const TypeWord& type, std::u16string_view entity);

// Elements 1 to the upper bound, one after the other. Error 9 for an array that was never
// dimensioned, or that begins above 1.
WriteRows rows_of(const Array<String>& table);
// The records of a file, a line each; its comments are written too. Errors as for reading a file.
WriteRows rows_of_file(std::u16string_view file);

}  // namespace kw::store
