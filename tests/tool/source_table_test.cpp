#include "tool/source_table.h"

#include <gtest/gtest.h>

#include "base/unicode.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

// A row as text: its values, "-" for none, and its fault.
std::string shown(const SourceRow& row) {
  std::string text = std::to_string(row.number) + ":";
  for (const auto& value : row.values) text += value ? " [" + to_utf8(*value) + "]" : " -";
  return row.fault.empty() ? text : text + " ! " + row.fault;
}

std::vector<std::string> shown(const SourceTable& table) {
  std::vector<std::string> rows;
  for (const SourceRow& row : table.rows) rows.push_back(shown(row));
  return rows;
}

using Rows = std::vector<std::string>;

template <class Function>
std::string failure_of(Function&& function) {
  try {
    function();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.code, ExitCode::failed);
    return failure.message;
  }
  return "none";
}

TEST(Csv, CutsFieldsAtCommas) {
  const SourceTable table = read_csv("id,nm\r\n1,a b\r\n2,c\n", "t");
  EXPECT_EQ(table.columns, (std::vector<std::u16string>{u"id", u"nm"}));
  EXPECT_EQ(shown(table), (Rows{"1: [1] [a b]", "2: [2] [c]"}));
}

TEST(Csv, KeepsCommasQuotesAndLineBreaksInQuotedFields) {
  const SourceTable table = read_csv("id,nm\r\n1,\"a,\"\"b\"\"\r\nc\"\r\n2,x\r\n", "t");
  EXPECT_EQ(shown(table), (Rows{"1: [1] [a,\"b\"\r\nc]", "2: [2] [x]"}));
  EXPECT_EQ(table.rows[1].line, 4u);
}

TEST(Csv, TellsNoValueFromAnEmptyOne) {
  EXPECT_EQ(shown(read_csv("id,a,b\n1,,\"\"\n", "t")), (Rows{"1: [1] - []"}));
}

TEST(Csv, NeedsNoLastLineEnd) { EXPECT_EQ(shown(read_csv("id\n1", "t")), (Rows{"1: [1]"})); }

TEST(Csv, SkipsAByteOrderMark) {
  EXPECT_EQ(read_csv("\xEF\xBB\xBFid\n", "t").columns, (std::vector<std::u16string>{u"id"}));
}

TEST(Csv, ReportsRowsOfAnotherLength) {
  EXPECT_EQ(shown(read_csv("id,a\n1\n2,b,c\n", "t")),
            (Rows{"1: [1] ! it has 1 field, the header 2",
                  "2: [2] [b] [c] ! it has 3 fields, the header 2"}));
}

TEST(Csv, ReportsEmptyLines) {
  EXPECT_EQ(shown(read_csv("id,a\n\n2,b\n", "t")),
            (Rows{"1: - ! the line is empty", "2: [2] [b]"}));
}

TEST(Csv, ReportsTextAfterAClosingQuote) {
  EXPECT_EQ(shown(read_csv("id\n\"a\"b\n", "t")),
            (Rows{"1: [ab] ! text follows the closing quote of a field"}));
}

TEST(Csv, ReportsWhatIsNotUtf8) {
  EXPECT_EQ(read_csv("id\n\xE9\n", "t").rows[0].fault, "it is not UTF-8");
}

TEST(Csv, FailsWhereAQuoteIsNeverClosed) {
  EXPECT_EQ(failure_of([] { read_csv("id\n1\n\"a\n", "t.csv"); }),
            "cannot read 't.csv': the quote that opens in line 3 is never closed");
}

TEST(Csv, FailsWithoutAHeader) {
  EXPECT_EQ(failure_of([] { read_csv("", "t.csv"); }),
            "cannot read 't.csv': it has no header line");
}

TEST(Json, ReadsAListOfObjects) {
  const SourceTable table = read_json(R"([{"id": "1", "nm": "a"}, {"x": 2, "id": "2"}])", "t");
  EXPECT_EQ(table.columns, (std::vector<std::u16string>{u"x", u"id", u"nm"}));
  EXPECT_EQ(shown(table), (Rows{"1: - [1] [a]", "2: [2] [2] -"}));
}

TEST(Json, OrdersColumnsAsTheRowsAgree) {
  EXPECT_EQ(read_json(R"([{"a": 1, "c": 1}, {"a": 1, "b": 1}, {"b": 1, "c": 1}])", "t").columns,
            (std::vector<std::u16string>{u"a", u"b", u"c"}));
}

TEST(Json, OrdersColumnsByAppearanceWhereRowsDisagree) {
  EXPECT_EQ(read_json(R"([{"a": 1, "b": 1}, {"b": 1, "a": 1}])", "t").columns,
            (std::vector<std::u16string>{u"a", u"b"}));
}

TEST(Json, ReadsTheOnlyListOfAnObject) {
  const SourceTable table =
      read_json(R"({"version": 1, "meta": {"a": [1]}, "rows": [{"id": "1"}], "end": null})", "t");
  EXPECT_EQ(shown(table), (Rows{"1: [1]"}));
}

TEST(Json, KeepsTheSpellingOfNumbers) {
  EXPECT_EQ(
      shown(read_json(R"([{"a": 1.50, "b": 1e3, "c": -7, "d": 12345678901234567890123}])", "t")),
      (Rows{"1: [1.50] [1e3] [-7] [12345678901234567890123]"}));
}

TEST(Json, ReadsTruthValuesAndNothing) {
  EXPECT_EQ(shown(read_json(R"([{"a": true, "b": null, "c": ""}])", "t")),
            (Rows{"1: [true] - []"}));
}

TEST(Json, ReportsRowsThatAreNoObjects) {
  EXPECT_EQ(shown(read_json(R"([1, [2], {"id": "3"}])", "t")),
            (Rows{"1: - ! it is no object", "2: - ! it is no object", "3: [3]"}));
}

TEST(Json, ReportsNestedValues) {
  EXPECT_EQ(shown(read_json(R"([{"id": "1", "a": {"b": [1]}}, {"id": "2", "a": [1, 2]}])", "t")),
            (Rows{"1: [1] - ! a: it holds an object", "2: [2] - ! a: it holds a list"}));
}

TEST(Json, ReportsAMemberThatStandsTwice) {
  EXPECT_EQ(read_json(R"([{"id": "1", "id": "2"}])", "t").rows[0].fault,
            "id: it stands there twice");
}

TEST(Json, FailsOnTwoLists) {
  EXPECT_EQ(failure_of([] { read_json(R"({"a": [], "b": []})", "t.json"); }),
            "cannot read 't.json': it has more than one list");
}

TEST(Json, FailsWithoutAList) {
  EXPECT_EQ(failure_of([] { read_json(R"({"a": 1})", "t.json"); }),
            "cannot read 't.json': it holds no list of objects");
}

TEST(Json, FailsOnBrokenText) {
  EXPECT_NE(failure_of([] { read_json("[{", "t.json"); }).find("parse error at line 1"),
            std::string::npos);
}

}  // namespace
}  // namespace kw::tool
