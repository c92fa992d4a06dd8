// Entities as rows of a table: what an import makes of a table, the other way round.
#pragma once

#include <string>
#include <vector>

#include "kwutils/collection.h"
#include "tool/entity_store.h"
#include "tool/progress.h"

namespace kw::tool {

struct ExportedRows {
  std::vector<std::u16string> columns;  // keywords: id first, then nm
  std::vector<std::vector<Item>> rows;
  std::vector<std::string> remarks;  // what of the entities is in no row
};

// The items that look-ups find on the first line of each entity. Rows are such that importing them
// gives the same items again, and the columns stand in an order that gives a file that an import
// wrote byte for byte.
ExportedRows make_rows(const Collection& entities, const std::string& type,
                       ProgressBar* progress = nullptr);

}  // namespace kw::tool
