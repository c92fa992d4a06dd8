// Exporting is the inverse of importing. Random tables, made of pieces that are troublesome beside
// each other, are imported and exported; random entities are exported, imported and exported again.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/unicode.h"
#include "reference/random_inputs.h"
#include "tool/csv_writer.h"
#include "tool/export_rows.h"
#include "tool/import_rows.h"

namespace kw::tool {
namespace {

using Texts = std::vector<std::u16string>;

std::u16string random_text(reference::Random& random, const std::vector<std::u16string>& pieces,
                           std::size_t most) {
  std::u16string text;
  for (std::size_t i = reference::pick(random, 0, most); i > 0; --i)
    text += pieces[reference::pick(random, 0, pieces.size() - 1)];
  return text;
}

// A table with an identifier in each row and gaps elsewhere.
SourceTable random_table(reference::Random& random) {
  static const std::vector<std::u16string> pieces = {u"'",  u"\"", u" ",   u"a", u"b",   u"nm",
                                                     u"id", u",",  u"x y", u"é", u"TBLE"};
  SourceTable table;
  table.columns = {u"id", u"nm", u"a", u"b", u"x"};
  std::shuffle(table.columns.begin(), table.columns.end(), random);
  for (std::size_t row = 1; row <= 6; ++row) {
    table.rows.push_back({row, 0, {}, ""});
    for (const std::u16string& column : table.columns) {
      std::optional<std::u16string> value;
      if (column == u"id")
        value = from_utf8(std::to_string(row));
      else if (random() % 3 != 0)
        value = random_text(random, pieces, 4);
      table.rows.back().values.push_back(std::move(value));
    }
  }
  return table;
}

Texts texts_of(const SourceTable& table) {
  Texts texts;
  for (const NewEntity& entity : make_entities(table, {}, false).entities)
    texts.push_back(entity.text + u" ");
  return texts;
}

Collection collection_of(const Texts& texts) {
  const Collection collection = Collection::create();
  for (const std::u16string& text : texts) collection.add(Variant(String(text)));
  return collection;
}

// What is exported, as the CSV that holds it.
std::string csv_of(const Texts& texts) {
  const ExportedRows rows = make_rows(collection_of(texts), "NODE");
  std::vector<std::optional<std::u16string>> cells(rows.columns.begin(), rows.columns.end());
  std::string text = csv_line(cells);
  for (const std::vector<Item>& row : rows.rows) {
    cells.assign(rows.columns.size(), std::nullopt);
    for (const Item& item : row) {
      const auto column = std::find(rows.columns.begin(), rows.columns.end(), item.keyword);
      cells[static_cast<std::size_t>(column - rows.columns.begin())] = item.value;
    }
    text += csv_line(cells);
  }
  return text;
}

TEST(RoundTrip, GivesImportedEntitiesToTheLetter) {
  std::size_t reordered = 0;
  const auto rounds = reference::for_random_inputs(21, [&](reference::Random& random) {
    const Texts texts = texts_of(random_table(random));
    for (const std::u16string& text : texts)
      if (text.find(u"nm") > text.find(u" a ")) ++reordered;
    EXPECT_EQ(texts_of(read_csv(csv_of(texts), "t")), texts);
  });
  EXPECT_GT(reordered * 20, rounds);
}

TEST(RoundTrip, GivesTheSameRowsOfAnyEntities) {
  static const std::vector<std::u16string> words = {
      u"id ", u"nm ",   u"a ",    u"b ", u"'1' ", u"'x y' ", u"\"p'q\" ", u"5 ",
      u"z' ", u"TBLE ", u"tble ", u"' ", u"\" ",  u", ",     u"id '7' ",  u"\r\n"};
  std::size_t rows = 0;
  const auto rounds = reference::for_random_inputs(22, [&](reference::Random& random) {
    Texts texts;
    for (int i = 0; i < 6; ++i) texts.push_back(random_text(random, words, 9));
    const std::string exported = csv_of(texts);
    const SourceTable table = read_csv(exported, "t");
    rows += table.rows.size();
    EXPECT_EQ(make_entities(table, {}, false).reported.size(), 0u) << exported;
    const std::string again = csv_of(texts_of(table));
    EXPECT_EQ(again, exported);
  });
  EXPECT_GT(rows * 3, rounds);
}

}  // namespace
}  // namespace kw::tool
