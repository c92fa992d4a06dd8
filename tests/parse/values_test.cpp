#include "parse/values.h"

#include <gtest/gtest.h>

#include <limits>

#include "kwutils/clsParse.h"
#include "reference/parse_keyword.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

const clsParse kParse;

std::u16string value(std::u16string_view text, const char16_t* keyword) {
  Array<String> values;
  const String found = kParse.ParseValuewithTokenandCheck(text, String(keyword), values, 0);
  EXPECT_FALSE(values.dimensioned());
  return text_of(found);
}

TEST(ParseValuewithTokenandCheck, SkipsTheKeywordInQuotedText) {
  EXPECT_EQ(value(u"nm 'x id y' id 7", u"id"), u"7");
  EXPECT_EQ(value(u"nm 'id 3' a 'id 4' id 7", u"id"), u"7");
}

TEST(ParseValuewithTokenandCheck, FindsWholeWordsOnly) {
  EXPECT_EQ(value(u"xid 5", u"id"), u"");
  EXPECT_EQ(value(u"idx 5", u"id"), u"");
  EXPECT_EQ(value(u"xid 5 id 6", u"id"), u"6");
  EXPECT_EQ(value(u"id 5", u"ID"), u"");
}

TEST(ParseValuewithTokenandCheck, AWordAfterACommaOrAQuoteIsNoKeyword) {
  EXPECT_EQ(value(u"a ,id 5", u"id"), u"");
  EXPECT_EQ(value(u"a 'id' 5", u"id"), u"");
}

TEST(ParseValuewithTokenandCheck, SearchesTheFirstLineOnly) {
  EXPECT_EQ(value(u"nm 'A'\r\nid 7", u"id"), u"");
  EXPECT_EQ(value(u"\r\nid 7", u"id"), u"");
  EXPECT_EQ(value(u"nm 'x id\r\nid 7", u"id"), u"");
}

TEST(ParseValuewithTokenandCheck, AfterAnUnclosedQuoteTheKeywordCounts) {
  EXPECT_EQ(value(u"nm 'x id 7", u"id"), u"7");
}

// The odd apostrophe of a name shifts every quote after it.
TEST(ParseValuewithTokenandCheck, AnOddApostropheHidesKeywords) {
  EXPECT_EQ(value(u"nm O'Hara id '7' x '8'", u"id"), u"");
}

TEST(ParseValuewithTokenandCheck, TheValueMayBeQuoted) {
  EXPECT_EQ(value(u"nm 'Main inlet' id 7", u"nm"), u"Main inlet");
  EXPECT_EQ(value(u"nm 'Main inlet", u"nm"), u"");
  EXPECT_EQ(value(u"id", u"id"), u"");
  EXPECT_EQ(value(u"", u"id"), u"");
}

TEST(ParseValuewithTokenandCheck, DoubleQuotesHideNothing) {
  EXPECT_EQ(value(u"nm \"x id y \" id 7", u"id"), u"y");
}

TEST(ParseValuewithTokenandCheck, FillsTheArray) {
  Array<String> values;
  const String found = kParse.ParseValuewithTokenandCheck(u"id 1 2", String(u"id"), values, 2);
  EXPECT_EQ(found.view(), u"1");
  EXPECT_EQ(texts_of(values), (Texts{u"", u"1", u"2"}));
}

TEST(ParseValuewithTokenandCheck, MissingValuesAreEmpty) {
  Array<String> values = array_of(3, {u"old"});
  kParse.ParseValuewithTokenandCheck(u"id 1 'x", String(u"id"), values, 3);
  EXPECT_EQ(texts_of(values), (Texts{u"", u"1", u"", u""}));
}

TEST(ParseValuewithTokenandCheck, TheArrayIsMadeNewWithoutTheKeywordToo) {
  Array<String> values = array_of(1, {u"old"});
  EXPECT_TRUE(kParse.ParseValuewithTokenandCheck(u"nm 1", String(u"id"), values, 2).empty());
  EXPECT_EQ(texts_of(values), (Texts{u"", u"", u""}));
}

TEST(ParseValuewithTokenandCheck, WithACountOfZeroTheArrayIsNotTouched) {
  Array<String> values = array_of(1, {u"old"});
  EXPECT_EQ(kParse.ParseValuewithTokenandCheck(u"id 1 2", String(u"id"), values, 0).view(), u"1");
  EXPECT_EQ(kParse.ParseValuewithTokenandCheck(u"id 1 2", String(u"id"), values, -5).view(), u"1");
  EXPECT_EQ(texts_of(values), (Texts{u"old"}));
}

TEST(ParseValuewithTokenandCheck, ALockedArrayTakesWhatFits) {
  Array<String> values = array_of(1, {u"old", u"old"});
  const ArrayLock lock(values);
  EXPECT_EQ(kParse.ParseValuewithTokenandCheck(u"id 1", String(u"id"), values, 5).view(), u"1");
  EXPECT_EQ(texts_of(values), (Texts{u"1", u""}));
  EXPECT_TRUE(kParse.ParseValuewithTokenandCheck(u"nm 1", String(u"id"), values, 5).empty());
  EXPECT_EQ(texts_of(values), (Texts{u"1", u""}));
}

TEST(ParseValuewithTokenandCheck, ALockedArrayWithoutElementOneGivesNothing) {
  Array<String> values = array_of(0, {u"old"});
  const ArrayLock lock(values);
  EXPECT_TRUE(kParse.ParseValuewithTokenandCheck(u"id 1", String(u"id"), values, 5).empty());
}

TEST(ParseValuewithTokenandCheck, MoreValuesThanAnArrayHoldsAreNotStored) {
  Array<String> values;
  const std::int32_t most = std::numeric_limits<std::int32_t>::max();
  EXPECT_TRUE(kParse.ParseValuewithTokenandCheck(u"id 1", String(u"id"), values, most).empty());
  EXPECT_FALSE(values.dimensioned());
}

TEST(ParseValuewithTokenandCheck, TextAndKeywordMayBeElementsOfTheArray) {
  Array<String> values = array_of(0, {u"id 1 2", u"id"});
  EXPECT_EQ(kParse.ParseValuewithTokenandCheck(values.at(0), values.at(1), values, 2).view(), u"1");
  EXPECT_EQ(texts_of(values), (Texts{u"", u"1", u"2"}));
}

TEST(ParseValuewithTokenandCheck, AgreesWithTheStepsOnRandomTexts) {
  reference::for_random_inputs(8, [](reference::Random& random) {
    const auto text = reference::pick_text(random, std::u16string_view(u"''   ,\"iidd\r\n"), 40);
    const auto keyword = reference::pick_text(random, std::u16string_view(u"id,"), 2);
    const auto count = static_cast<std::int32_t>(reference::pick(random, 0, 4)) - 1;
    const auto expected = reference::values(text, keyword, count);
    Array<String> values;
    const String found = kParse.ParseValuewithTokenandCheck(text, String(keyword), values, count);
    ASSERT_EQ(found.view(), expected[1]);
    ASSERT_EQ(texts_of(values), count < 1 ? Texts() : expected);
  });
}

}  // namespace
}  // namespace kw
