#include "tool/table_rows.h"

#include "base/find_text.h"
#include "base/unicode.h"
#include "parse/item.h"
#include "tool/exact_lookup.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

View without_line_end(View line) {
  return line.ends_with(u"\r\n") ? line.substr(0, line.size() - 2) : line;
}

// Adds the rows of one line.
void cut_line(View line, std::vector<TableRow>& rows) {
  TableRow row;
  for (line = parse::trim(without_line_end(line)); !line.empty();) {
    const auto cell = parse::take_item(line);
    if (cell.quote == 0 && cell.text == u"<") {
      rows.push_back(std::move(row));
      row.clear();
    } else {
      row.emplace_back(cell.text);
    }
  }
  if (!row.empty()) rows.push_back(std::move(row));
}

}  // namespace

std::optional<std::vector<TableRow>> read_table(const EntityFile& file, const std::string& id) {
  const clsFileReadWrite store;
  const String entity = id.empty()
                            ? store.GetTokenEntity(file.name(), file.token())
                            : store.GetEntity(file.name(), file.token(), String::from_utf8(id));
  if (entity.empty()) return std::nullopt;
  std::vector<TableRow> rows;
  if (find_text(entity.view(), View(u"TBLE")) == kNotFound) return rows;
  Array<String> lines;
  const ExactLookup lookup = exact_lookup(file, id, entity);
  store.GetTableEntry(file.name(), u"", lookup.type, lookup.id, lines);
  for (const String& line : lines.elements()) cut_line(line, rows);
  return rows;
}

}  // namespace kw::tool
