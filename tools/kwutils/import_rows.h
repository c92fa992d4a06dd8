// Rows of a table as entities.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tool/progress.h"
#include "tool/source_table.h"
#include "tool/store_entities.h"

namespace kw::tool {

struct ImportColumns {
  std::string id = "id";            // holds the identifiers
  std::optional<std::string> name;  // holds the names; else "nm", where there is such a column
};

// What became of a row.
struct RowReport {
  std::size_t row;
  std::size_t line;  // 0 where rows have none
  std::string text;
};

struct ImportedRows {
  std::vector<NewEntity> entities;
  std::vector<std::size_t> rows;          // of each entity: its place in the table, from 0
  std::vector<RowReport> reported;        // rows that cannot be stored, with the reason
  std::vector<RowReport> transliterated;  // rows of which something else is stored
  std::vector<std::string> renamed;       // columns whose keyword is not their name
};

// Makes an entity of each row: the identifier as item id first, the name as item nm, the other
// columns as items of their names. With `transliterate`, the nearest spelling stands for a value
// that cannot be stored. Fails (exit status 3) where a column cannot be an item.
ImportedRows make_entities(const SourceTable& table, const ImportColumns& columns,
                           bool transliterate, ProgressBar* progress = nullptr);

}  // namespace kw::tool
