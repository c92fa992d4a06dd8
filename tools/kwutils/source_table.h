// Rows to be imported, wherever they come from.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw::tool {

struct SourceRow {
  std::size_t number = 0;  // from 1; a header is no row
  std::size_t line = 0;    // of the file, from 1; 0 where rows have none
  // By column; nothing where the row has no value, as against an empty one. May be shorter than the
  // columns.
  std::vector<std::optional<std::u16string>> values;
  std::string fault;  // why the row cannot be used (UTF-8), or ""
};

struct SourceTable {
  std::vector<std::u16string> columns;
  std::vector<SourceRow> rows;
};

// The first line names the columns. Fields are separated by commas; one in double quotes may hold
// commas, line breaks and, doubled, double quotes. A field with nothing in it is no value, "" in
// quotes an empty one. Fails (exit status 3) where a quote is never closed or there is no header.
SourceTable read_csv(std::string_view text, std::string_view file);

// A list of objects, or an object of whose members exactly one is a list. Members of the objects
// are columns, in the order that the objects agree on, else that of their first appearance; null is
// no value; numbers keep their spelling. Fails (exit status 3) on anything else.
SourceTable read_json(std::string_view text, std::string_view file);

enum class SourceFormat { automatic, csv, json };

// Reads the file, "-" being standard input. The format is told by the file's name or, where that
// does not tell, by its first character.
SourceTable read_source(const std::string& file, SourceFormat format);

}  // namespace kw::tool
