// The rows of one entity's table as an array.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/array.h"
#include "kwutils/boolean.h"
#include "kwutils/string.h"

namespace kw::store {

// Which table is read. The entity is found as entity_without_table finds it.
struct TableQuery {
  std::u16string_view file;
  std::u16string_view token;
  std::u16string_view id;
};

// Gives the number of rows; `table` gets bounds 1 to that number. Where no such entity is found the
// number is 0 and `table` has bounds 1 to `buffer_size`, all empty; so it has while and after the
// file could not be opened. Error 9 for a buffer size below 1. When reading fails later, `table`
// holds the rows read so far.
std::int32_t table_entry(const TableQuery& query, Array<String>& table, std::int32_t buffer_size);

// The same with at most `buffer_size` rows in memory: a longer table is written to `spill_file`,
// row after row, `stored` becomes true and `table` gets one empty element. Otherwise `table` holds
// the rows, or, where there are none, keeps bounds 1 to `buffer_size`.
std::int32_t table_entry_with_spill(const TableQuery& query, Array<String>& table,
                                    std::u16string_view spill_file, Boolean& stored,
                                    std::int32_t buffer_size);

}  // namespace kw::store
