// The examples of clsParse.h and clsStringUtil.h.
#include "headers/example_values.h"
#include "kwutils/clsParse.h"
#include "kwutils/clsStringUtil.h"

namespace kw {
namespace {

const kw::clsParse parse;

TEST(ParsingExamples, Items) {
  kw::String list = u"id 'B 2' nm 'Outlet'";
  EXPECT_EQ(parse.ParseList(list), u"id");
  EXPECT_EQ(list, u"'B 2' nm 'Outlet'");
  EXPECT_EQ(parse.ParseList(list), u"B 2");
  EXPECT_EQ(parse.ParseListPlus(list), u"nm");
  EXPECT_EQ(parse.ParseListPlus(list), u"'Outlet'");
  EXPECT_EQ(list, u"");
}

TEST(ParsingExamples, Fields) {
  kw::Array<kw::String> fields;
  EXPECT_EQ(parse.ParseFields(u"a;'b;c'", u";", fields), 2);
  EXPECT_EQ(fields.at(0), u"2");
  EXPECT_EQ(fields.at(2), u"b;c");
  EXPECT_EQ(parse.ParseString(u"a,, c", u",", kw::Variant(3)), u" c");
  EXPECT_EQ(parse.ParseString(u"a,, c", u",", kw::Variant(4)), u"");
}

TEST(ParsingExamples, Tokens) {
  EXPECT_EQ(parse.ParseToken(u"id 'B 2'", kw::Variant(2)), u"B 2");
  kw::Array<kw::String> tokens;
  std::int32_t count = 0;
  EXPECT_EQ(parse.ParseTokenArray(u"a 'b c' d", 2, tokens, count), 0);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(tokens.at(2), u"b c");
}

TEST(ParsingExamples, LinesAndValues) {
  kw::String lines = u"one\r\n two";
  EXPECT_EQ(parse.ParseRecord(lines), u"one");
  EXPECT_EQ(lines, u" two");
  kw::Array<kw::String> values;
  EXPECT_EQ(parse.ParseValuewithTokenandCheck(u"nm 'x id y' id 7", u"id", values, 0), u"7");
  EXPECT_EQ(parse.ParseValuewithTokenandCheck(u"xy 1.5 2.5", u"xy", values, 2), u"1.5");
  EXPECT_EQ(values.at(2), u"2.5");
}

TEST(ParsingExamples, Structures) {
  EXPECT_EQ(parse.ParseSubEntity(u"NODE a 'b c' d node", u"node"), u"a 'b c' d");
  kw::Collection parts;
  EXPECT_EQ(parse.ParseSubEntitiesIntoColl(u"X a x X 'b c' x", u"x", parts), 2);
  EXPECT_EQ(parts.item(2).text(), u"'b c'");
  kw::String entity = u"LST 'p q' r lst rest";
  kw::Collection words;
  EXPECT_EQ(parse.ParseTokenListIntoColl(entity, u"LST", words), 2);
  EXPECT_EQ(entity, u"rest\r\n");
  EXPECT_EQ(words.item(1).text(), u"p q");
  entity = u"id 3 nm 'old'";
  EXPECT_EQ(parse.ReplaceEntity(entity, u"NM", u"'new'"), u"id 3 nm 'new' ");
  EXPECT_EQ(entity, u"");
}

TEST(ParsingExamples, Tables) {
  kw::String table = u"head\r\nTBLE\r\n1 2 <\r\ntble tail";
  EXPECT_EQ(parse.ParseTable(table), u"1 2 <");
  EXPECT_EQ(table, u" tail");
  kw::String levels = u"TBLE 1 'a b' < 3 4 < tble";
  kw::Array<kw::String> rows;
  std::int32_t last = 0;
  EXPECT_EQ(parse.ParseTableList(levels, rows, last), 2);
  EXPECT_EQ(last, 2);
  EXPECT_EQ(rows.at(1), u"1 a b < \r\n");
}

TEST(TextExamples, AreTrue) {
  kw::clsStringUtil util;
  EXPECT_EQ(util.RemoveSpaces(u"  a b "), u"ab");
  EXPECT_EQ(util.ReplaceAllOccurs(u"a-b-c", u"-", u"+"), u"a+b+c");
  EXPECT_EQ(util.OutStr(u"abcabc", u"bc"), 6);
  EXPECT_EQ(util.InvertString(u"abc"), u"cba");
  EXPECT_EQ(util.StrNoNull(std::u16string(u"ab\0c", 4)), u"ab");
  EXPECT_EQ(util.ReplaceTabCharacterswithBlank(u"a\tb"), u"a b");
  EXPECT_EQ(util.NumStr(0.5f), u" 0.5");
}

}  // namespace
}  // namespace kw
