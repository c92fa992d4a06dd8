// What is written must be read back: besides written-out cases, lines of random items from a small
// alphabet of troublesome pieces are read back with the parser class itself.
#include "tool/item_line.h"

#include <gtest/gtest.h>

#include <random>

#include "base/unicode.h"
#include "kwutils/clsParse.h"

namespace kw::tool {
namespace {

std::string text_of(const std::vector<Item>& items) { return to_utf8(write_items(items).text); }
std::string fault_of(const std::vector<Item>& items) { return write_items(items).fault; }

TEST(ItemLine, PutsValuesIntoApostrophes) {
  EXPECT_EQ(text_of({{u"id", u"B2"}, {u"nm", u"Main inlet"}, {u"ln", u""}}),
            "id 'B2' nm 'Main inlet' ln ''");
}

TEST(ItemLine, PutsAValueWithApostrophesIntoDoubleQuotes) {
  EXPECT_EQ(text_of({{u"id", u"1"}, {u"nm", u"Gomel'skaja oblast'"}, {u"t", u"x"}}),
            "id '1' nm \"Gomel'skaja oblast'\" t 'x'");
}

TEST(ItemLine, MovesAnOddApostropheToTheEnd) {
  EXPECT_EQ(text_of({{u"id", u"1"}, {u"nm", u"L'Aquila"}, {u"a", u"x"}, {u"b", u"y"}}),
            "id '1' a 'x' b 'y' nm \"L'Aquila\"");
}

TEST(ItemLine, PutsAnItemBeforeAQuotedWordThatIsItsKeyword) {
  EXPECT_EQ(text_of({{u"id", u"1"}, {u"nm", u"le 'pa' pa x"}, {u"pa", u"5"}}),
            "id '1' pa '5' nm \"le 'pa' pa x\"");
}

TEST(ItemLine, LeavesAKeywordInsideApostrophesWhereItIs) {
  EXPECT_EQ(text_of({{u"id", u"1"}, {u"nm", u"le pa x"}, {u"pa", u"5"}}),
            "id '1' nm 'le pa x' pa '5'");
}

TEST(ItemLine, LeavesAWordWithBothQuotesBare) {
  EXPECT_EQ(text_of({{u"id", u"1"}, {u"h", u"5'10\""}, {u"t", u"x"}}), "id '1' t 'x' h 5'10\"");
}

TEST(ItemLine, RefusesBlanksBetweenBothQuotes) {
  EXPECT_EQ(fault_of({{u"id", u"1"}, {u"h", u"5' 10\""}}),
            "h \"5' 10\"\": it holds both kinds of quotes");
}

TEST(ItemLine, RefusesTwoOddApostrophes) {
  EXPECT_EQ(fault_of({{u"id", u"1"}, {u"a", u"x'y"}, {u"b", u"p'q"}}),
            "in no order on the line can all of these be read back: a \"x'y\" b \"p'q\"");
}

TEST(ItemLine, RefusesItemsThatHideEachOther) {
  EXPECT_NE(fault_of({{u"id", u"1"}, {u"a", u"'' b x"}, {u"b", u"'' a x"}}), "");
}

TEST(ItemLine, RefusesValuesThatFilesChange) {
  EXPECT_EQ(fault_of({{u"id", u"1"}, {u"nm", u"a\tb"}}),
            "nm \"a\tb\": a tab is read back as a blank");
  EXPECT_NE(fault_of({{u"nm", u"a\u00A0b"}}), "");
  EXPECT_NE(fault_of({{u"nm", u"a\r\nb"}}), "");
  EXPECT_NE(fault_of({{u"nm", u" a"}}), "");
  EXPECT_NE(fault_of({{u"nm", u"a "}}), "");
  EXPECT_NE(fault_of({{u"nm", u"Łódź"}}), "");
}

TEST(ItemLine, ReadsAnItemOnTheFirstLineOnly) {
  EXPECT_EQ(read_item(u"id '1'\r\nnm 'x'", u"nm"), u"");
  EXPECT_EQ(read_item(u"id '1' nm 'x'", u"nm"), u"x");
}

std::u16string random_value(std::mt19937& random) {
  static const std::u16string_view pieces[] = {u"'", u"\"", u" ", u"a", u"b", u",", u"x"};
  std::u16string value;
  for (auto i = random() % 6; i > 0; --i) value += pieces[random() % std::size(pieces)];
  return value;
}

TEST(ItemLine, IsReadBackByTheParserClass) {
  std::mt19937 random(11);
  const clsParse parse;
  int written = 0;
  for (int round = 0; round < 20000; ++round) {
    std::vector<Item> items = {{u"id", u"7"}};
    for (const char16_t* keyword : {u"a", u"b", u"x"})
      if (random() % 4 != 0) items.push_back({keyword, random_value(random)});
    const ItemLine line = write_items(items);
    if (!line.fault.empty()) continue;
    ++written;
    for (const Item& item : items) {
      Array<String> values;
      ASSERT_EQ(
          parse.ParseValuewithTokenandCheck(line.text, String(item.keyword), values, 1).view(),
          item.value)
          << to_utf8(line.text);
    }
  }
  EXPECT_GT(written, 5000);
}

// Every order of the items, by brute force.
bool fits_in_some_order(std::vector<Item> items) {
  const auto by_keyword = [](const Item& l, const Item& r) { return l.keyword < r.keyword; };
  std::sort(items.begin(), items.end(), by_keyword);
  do {
    bool fits = true;
    std::u16string line;
    for (const Item& item : items) {
      const bool apostrophe = item.value.find(u'\'') != item.value.npos;
      const bool both = apostrophe && item.value.find(u'"') != item.value.npos;
      const std::u16string quote = both ? u"" : apostrophe ? u"\"" : u"'";
      line += item.keyword + u" " + quote + item.value + quote + u" ";
    }
    for (const Item& item : items) fits = fits && read_item(line, item.keyword) == item.value;
    if (fits) return true;
  } while (std::next_permutation(items.begin(), items.end(), by_keyword));
  return false;
}

TEST(ItemLine, FindsAnOrderWheneverThereIsOne) {
  std::mt19937 random(12);
  for (int round = 0; round < 20000; ++round) {
    std::vector<Item> items = {{u"id", u"7"}};
    for (const char16_t* keyword : {u"a", u"b", u"x"})
      items.push_back({keyword, random_value(random)});
    const ItemLine line = write_items(items);
    const bool alone = line.fault.find("in no order") == std::string::npos;
    if (line.fault.empty() || alone) continue;
    ASSERT_FALSE(fits_in_some_order(items)) << line.fault;
  }
}

}  // namespace
}  // namespace kw::tool
