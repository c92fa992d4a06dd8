#include <gtest/gtest.h>

#include <limits>

#include "kwutils/clsParse.h"
#include "parse/values.h"
#include "reference/parse_tables.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

const clsParse kParse;

Texts table(std::u16string_view text) {
  String buffer(text);
  const String result = kParse.ParseTable(buffer);
  return {text_of(result), text_of(buffer)};
}

TEST(ParseTable, GivesTheLinesOfTheTable) {
  EXPECT_EQ(table(u"head\r\nTBLE\r\n1 2 <\r\ntble tail"), (Texts{u"1 2 <", u" tail"}));
  EXPECT_EQ(table(u"TBLE\r\n1 '2' <\r\n 3 <\r\ntble"), (Texts{u"1 '2' <\r\n 3 <", u""}));
}

TEST(ParseTable, TheRestOfTheOpeningLineIsLost) {
  EXPECT_EQ(table(u" TBLEX 1 <\r\n2 < tble"), (Texts{u"2 < ", u""}));
}

TEST(ParseTable, TheOpenerMustBeginItsLine) {
  EXPECT_EQ(table(u"x TBLE\r\n1 <\r\ntble"), (Texts{u"", u""}));
}

TEST(ParseTable, WithoutCloserThreeCharactersAreDropped) {
  EXPECT_EQ(table(u"TBLE\r\n12345"), (Texts{u"", u"45"}));
  EXPECT_EQ(table(u"TBLE\r\n12"), (Texts{u"", u""}));
}

TEST(ParseTable, AnEmptyTableIsEmpty) {
  EXPECT_EQ(table(u"TBLE\r\ntble x"), (Texts{u"", u" x"}));
  EXPECT_EQ(table(u""), (Texts{u"", u""}));
}

TEST(ParseTable, OnlyOneLineEndIsRemoved) {
  EXPECT_EQ(table(u"TBLE\r\n1\r\n\r\ntble"), (Texts{u"1\r\n", u""}));
  EXPECT_EQ(table(u"TBLE\r\n1\rtble"), (Texts{u"1\r", u""}));
}

TEST(ParseTable, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"TBLE", u"tble", u"\r\n", u"\r", u" ", u"a <", u"tb"};
  reference::for_random_inputs(13, [&](reference::Random& random) {
    std::u16string text;
    for (std::size_t count = reference::pick(random, 0, 14); count > 0; --count) {
      text += pieces[reference::pick(random, 0, pieces.size() - 1)];
    }
    std::u16string rest = text;
    const std::u16string expected = reference::parse_table(rest);
    ASSERT_EQ(table(text), (Texts{expected, rest}));
  });
}

struct Rows {
  std::int32_t result = -99;
  std::int32_t count = 0;
  int error = 0;
  std::int32_t lower = 0;
  Texts table;
  std::u16string rest;
};

Rows rows(std::u16string_view text, std::int32_t count = 0) {
  Rows rows;
  rows.count = count;
  String entity(text);
  Array<String> array = array_of(7, {u"old", u"old"});
  rows.error = number_of([&] { rows.result = kParse.ParseTableList(entity, array, rows.count); });
  rows.lower = array.lower();
  rows.table = texts_of(array);
  rows.rest = entity.view();
  return rows;
}

TEST(ParseTableList, GivesARowPerElement) {
  const Rows two = rows(u"TBLE 1 2 < 3 4 < tble");
  EXPECT_EQ(two.result, 2);
  EXPECT_EQ(two.count, 2);
  EXPECT_EQ(two.lower, 1);
  EXPECT_EQ(two.table, (Texts{u"1 2 < \r\n", u"3 4 < \r\n"}));
  EXPECT_EQ(two.rest, u"");
}

TEST(ParseTableList, KeepsWhatFollowsTheTable) {
  const Rows one = rows(u"id 'B2' TBLE 'a  b'\r\n c < tble  nm x\r\nmore");
  EXPECT_EQ(one.table, (Texts{u"a  b c < \r\n"}));
  EXPECT_EQ(one.rest, u"nm x\r\nmore");
}

TEST(ParseTableList, ARowWithoutEndIsLost) {
  EXPECT_EQ(rows(u"TBLE 1 < 2 tble").table, (Texts{u"1 < \r\n"}));
}

TEST(ParseTableList, ARowMayBeEmpty) { EXPECT_EQ(rows(u"TBLE < tble").table, (Texts{u"< \r\n"})); }

TEST(ParseTableList, WithoutCloserNothingIsRead) {
  const Rows none = rows(u"TBLE 1 <", 5);
  EXPECT_EQ(none.result, 0);
  EXPECT_EQ(none.count, 0);
  EXPECT_EQ(none.table, (Texts{u""}));
  EXPECT_EQ(none.rest, u"TBLE 1 <");
}

TEST(ParseTableList, ATableWithoutRowsIsAnError) {
  const Rows none = rows(u"TBLE tble tail\r\nmore");
  EXPECT_EQ(none.error, 9);
  EXPECT_EQ(none.count, 0);
  EXPECT_EQ(none.table, (Texts{u""}));
  EXPECT_EQ(none.rest, u"tail\r\nmore");
}

TEST(ParseTableList, RowsAreNumberedOn) {
  const Rows more = rows(u"TBLE 1 < tble", 2);
  EXPECT_EQ(more.result, 3);
  EXPECT_EQ(more.table, (Texts{u"", u"", u"1 < \r\n"}));
}

TEST(ParseTableList, WithoutRowsTheCountStays) {
  const Rows none = rows(u"TBLE tble", 3);
  EXPECT_EQ(none.error, 0);
  EXPECT_EQ(none.result, 3);
  EXPECT_EQ(none.table, (Texts{u""}));
}

TEST(ParseTableList, CountsThatNoRowCanFollowAreErrors) {
  const Rows negative = rows(u"TBLE 1 < tble x\r\ny", -1);
  EXPECT_EQ(negative.error, 9);
  EXPECT_EQ(negative.count, 0);
  EXPECT_EQ(negative.rest, u"y");
  const Rows far = rows(u"TBLE 1 < tble", 5001);
  EXPECT_EQ(far.error, 9);
  EXPECT_EQ(far.count, 5002);
  EXPECT_EQ(far.table.size(), 5001u);
  EXPECT_EQ(rows(u"TBLE 1 < tble", std::numeric_limits<std::int32_t>::max()).error, 6);
}

TEST(ParseTableList, HoldsMoreRowsThanOneStepOfGrowth) {
  std::u16string text = u"TBLE ";
  for (int number = 0; number < 5002; ++number) text += u"1 <\r\n";
  const Rows many = rows(text + u"tble");
  EXPECT_EQ(many.result, 5002);
  EXPECT_EQ(many.table.size(), 5002u);
  EXPECT_EQ(many.table.back(), u"1 < \r\n");
}

TEST(ParseTableList, ALockedArrayIsAnError) {
  Array<String> array = array_of(1, {u"kept"});
  const ArrayLock lock(array);
  String entity(u"TBLE 1 < tble");
  std::int32_t count = 0;
  EXPECT_EQ(number_of([&] { kParse.ParseTableList(entity, array, count); }), 10);
  EXPECT_EQ(texts_of(array), (Texts{u"kept"}));
  EXPECT_EQ(entity.view(), u"TBLE 1 < tble");
}

TEST(ParseTableList, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"TBLE", u"tble", u"\r\n", u" ", u" ", u" ", u"a", u"<", u"'", u","};
  reference::for_random_inputs(14, [&](reference::Random& random) {
    std::u16string text;
    for (std::size_t count = reference::pick(random, 0, 25); count > 0; --count) {
      text += pieces[reference::pick(random, 0, pieces.size() - 1)];
    }
    const auto before = static_cast<std::int32_t>(reference::pick(random, 0, 4)) - 2;
    std::u16string rest = text;
    const auto expected = reference::parse_table_list(rest, before, 5000);
    const Rows got = rows(text, before);
    ASSERT_EQ(got.error, expected.error);
    ASSERT_EQ(got.count, expected.rows);
    if (got.error == 0) {
      ASSERT_EQ(got.result, expected.rows);
    }
    ASSERT_EQ(got.table, expected.table);
    ASSERT_EQ(got.rest, rest);
  });
}

}  // namespace
}  // namespace kw
