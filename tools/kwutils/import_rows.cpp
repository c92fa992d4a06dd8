#include "tool/import_rows.h"

#include <algorithm>
#include <unordered_map>

#include "base/case_map.h"
#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/item_line.h"
#include "tool/notation.h"
#include "tool/transliterate.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;

// The columns in the order of their items, and their keywords.
struct Layout {
  std::vector<std::size_t> columns;
  std::vector<std::u16string> keywords;
};

std::optional<std::size_t> column_named(const SourceTable& table, const std::string& name) {
  const auto found = std::find(table.columns.begin(), table.columns.end(), from_utf8(name));
  if (found == table.columns.end()) return std::nullopt;
  return static_cast<std::size_t>(found - table.columns.begin());
}

std::size_t required_column(const SourceTable& table, const std::string& name) {
  if (const auto column = column_named(table, name)) return *column;
  std::string names;
  for (const std::u16string& column : table.columns) names += " " + in_quotes(to_utf8(column));
  fail("there is no column " + in_quotes(name) + "; there are" + (names.empty() ? " none" : names));
}

void add_column(Layout& layout, std::size_t column, std::u16string keyword,
                const std::u16string& name) {
  const std::string fault = keyword_fault(keyword);
  if (!fault.empty())
    fail("column " + in_quotes(to_utf8(name)) + " cannot be an item: its keyword " + fault);
  if (std::count(layout.keywords.begin(), layout.keywords.end(), keyword) != 0)
    fail("two columns would be item " + in_quotes(to_utf8(keyword)));
  layout.columns.push_back(column);
  layout.keywords.push_back(std::move(keyword));
}

Layout layout_of(const SourceTable& table, const ImportColumns& columns) {
  const std::size_t id = required_column(table, columns.id);
  const auto name =
      columns.name ? required_column(table, *columns.name) : column_named(table, "nm");
  if (name == id) fail("column " + in_quotes(columns.id) + " cannot be identifier and name");
  Layout layout;
  add_column(layout, id, u"id", table.columns[id]);
  if (name) add_column(layout, *name, u"nm", table.columns[*name]);
  for (std::size_t i = 0; i < table.columns.size(); ++i)
    if (i != id && i != name)
      add_column(layout, i, keyword_of_column(table.columns[i]), table.columns[i]);
  return layout;
}

std::vector<std::string> renamed_columns(const SourceTable& table, const Layout& layout) {
  std::vector<std::string> renamed;
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    const std::u16string& name = table.columns[layout.columns[i]];
    if (name != layout.keywords[i])
      renamed.push_back("column " + in_quotes(to_utf8(name)) + " is item " +
                        to_utf8(layout.keywords[i]));
  }
  return renamed;
}

std::vector<Item> items_of(const SourceRow& row, const Layout& layout) {
  std::vector<Item> items;
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    const std::size_t column = layout.columns[i];
    if (column < row.values.size() && row.values[column])
      items.push_back({layout.keywords[i], *row.values[column]});
    else if (i == 0)
      items.push_back({layout.keywords[i], u""});
  }
  return items;
}

std::string id_fault(const std::vector<Item>& items) {
  const std::string fault = identifier_fault(items.front().value);
  return fault.empty() ? ""
                       : "identifier " + in_quotes(to_utf8(items.front().value)) + ": " + fault;
}

ItemLine line_of(const std::vector<Item>& items) {
  std::string fault = id_fault(items);
  return fault.empty() ? write_items(items) : ItemLine{{}, {}, std::move(fault)};
}

// Puts the nearest spelling in the place of each value that cannot be stored, then, until the line
// can be written, typographic apostrophes into one value after the other, the last one first.
ItemLine transliterated_line(std::vector<Item>& items) {
  for (Item& item : items)
    if (!value_fault(item.value).empty())
      item.value = nearest_spelling(item.value).value_or(item.value);
  if (!id_fault(items).empty()) items.front().value = without_apostrophes(items.front().value);
  ItemLine line = line_of(items);
  for (auto item = items.rbegin(); !line.fault.empty() && item != items.rend(); ++item) {
    if (item->value.find(u'\'') == item->value.npos || !value_fault(item->value).empty()) continue;
    item->value = without_apostrophes(item->value);
    line = line_of(items);
  }
  return line;
}

std::string changes_text(const std::vector<Item>& before, const std::vector<Item>& after) {
  std::string text;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i].value == after[i].value) continue;
    if (!text.empty()) text += ", ";
    text += to_utf8(before[i].keyword) + " \"" + to_utf8(after[i].value) + "\" for \"" +
            to_utf8(before[i].value) + "\"";
  }
  return text;
}

class Maker {
 public:
  Maker(const Layout& layout, bool transliterate)
      : layout_(layout), transliterate_(transliterate) {}

  void make(const SourceRow& row, ImportedRows& result) {
    if (!row.fault.empty()) return report(row, row.fault, result);
    const std::vector<Item> given = items_of(row, layout_);
    std::vector<Item> items = given;
    ItemLine line = line_of(items);
    if (!line.fault.empty() && transliterate_) line = transliterated_line(items);
    if (!line.fault.empty()) return report(row, line.fault, result);
    const std::u16string& id = items.front().value;
    const auto [first, is_new] = rows_of_ids_.emplace(upper(id), row.number);
    if (!is_new)
      return report(row,
                    "row " + std::to_string(first->second) + " has the same identifier " +
                        in_quotes(to_utf8(id)),
                    result);
    if (const std::string changes = changes_text(given, items); !changes.empty())
      result.transliterated.push_back({row.number, row.line, changes});
    result.entities.push_back({id, std::move(line.text)});
    result.rows.push_back(row.number - 1);
  }

 private:
  static void report(const SourceRow& row, const std::string& reason, ImportedRows& result) {
    result.reported.push_back({row.number, row.line, reason});
  }

  const Layout& layout_;
  bool transliterate_;
  std::unordered_map<std::u16string, std::size_t> rows_of_ids_;
};

}  // namespace

ImportedRows make_entities(const SourceTable& table, const ImportColumns& columns,
                           bool transliterate, ProgressBar* progress) {
  ImportedRows result;
  const Layout layout = layout_of(table, columns);
  result.renamed = renamed_columns(table, layout);
  Maker maker(layout, transliterate);
  Steps steps(progress, "rows", table.rows.size());
  for (const SourceRow& row : table.rows) {
    maker.make(row, result);
    steps.step();
  }
  return result;
}

}  // namespace kw::tool
