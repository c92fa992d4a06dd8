#include <gtest/gtest.h>

#include "kwutils/clsParse.h"
#include "parse/values.h"
#include "reference/parse_list.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

const clsParse kParse;

struct Taken {
  std::u16string item;
  std::u16string rest;
  bool operator==(const Taken&) const = default;
};

Taken list(std::u16string_view text, const Variant& separator = Variant::missing()) {
  String buffer(text);
  const String item = kParse.ParseList(buffer, separator);
  return {text_of(item), text_of(buffer)};
}

Taken list_plus(std::u16string_view text, const Variant& separator = Variant::missing()) {
  String buffer(text);
  const String item = kParse.ParseListPlus(buffer, separator);
  return {text_of(item), text_of(buffer)};
}

TEST(ParseList, TakesWordAfterWord) {
  EXPECT_EQ(list(u"  alpha beta"), (Taken{u"alpha", u"beta"}));
  EXPECT_EQ(list(u"beta"), (Taken{u"beta", u""}));
  EXPECT_EQ(list(u""), (Taken{u"", u""}));
}

TEST(ParseList, QuotedItemsKeepTheirBlanks) {
  EXPECT_EQ(list(u"'a b' c"), (Taken{u"a b", u"c"}));
  EXPECT_EQ(list(u"\" a 'b' \"c"), (Taken{u"a 'b'", u"c"}));
}

TEST(ParseList, KeepsRestAfterUnclosedQuote) {
  EXPECT_EQ(list(u"'abc"), (Taken{u"", u"abc"}));
  EXPECT_EQ(list(u" ,'abc "), (Taken{u"", u"abc "}));
}

TEST(ParseList, SkipsOneCommaBeforeAnItem) {
  EXPECT_EQ(list(u", a"), (Taken{u"", u"a"}));
  EXPECT_EQ(list(u"a ,b"), (Taken{u"a", u",b"}));
  EXPECT_EQ(list(u",b"), (Taken{u"b", u""}));
  EXPECT_EQ(list(u"a, b"), (Taken{u"a,", u"b"}));
  EXPECT_EQ(list(u",,b"), (Taken{u",b", u""}));
}

TEST(ParseList, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(list(u"\ta\u00A0 b"), (Taken{u"\ta\u00A0", u"b"}));
}

TEST(ParseList, LeadingBlanksOfTheSeparatorDoNotCount) {
  EXPECT_EQ(list(u"x;y", u";"), (Taken{u"x", u"y"}));
  EXPECT_EQ(list(u"x;y", u"  ;"), (Taken{u"x", u"y"}));
  EXPECT_EQ(list(u"x;y; z", u"; "), (Taken{u"x;y", u"z"}));
}

TEST(ParseList, ASeparatorOfBlanksIsTakenAsItIs) {
  EXPECT_EQ(list(u"a b  c", u"  "), (Taken{u"a b", u"c"}));
}

TEST(ParseList, AnEmptySeparatorIsOneBlank) {
  EXPECT_EQ(list(u"a b", u""), (Taken{u"a", u"b"}));
  EXPECT_EQ(list(u"a b", Variant()), (Taken{u"a", u"b"}));
}

TEST(ParseList, ASeparatorOfAnotherKindIsTakenAsText) {
  EXPECT_EQ(list(u"a7b", Variant(std::int32_t{7})), (Taken{u"a", u"b"}));
}

TEST(ParseList, ASeparatorWithoutATextCountsAsLeftOut) {
  EXPECT_EQ(list(u"a b", Variant(Object())), (Taken{u"a", u"b"}));
}

TEST(ParseList, SkipsAsManyCharactersAfterAQuotedItemAsTheSeparatorHas) {
  EXPECT_EQ(list(u"'a';b", u";"), (Taken{u"a", u";b"}));
  EXPECT_EQ(list(u"'a'<>b", u"<>"), (Taken{u"a", u">b"}));
  EXPECT_EQ(list(u"'a'xyz", u"---"), (Taken{u"a", u"z"}));
  EXPECT_EQ(list(u"'a'x", u"-----"), (Taken{u"a", u""}));
}

TEST(ParseList, TheSeparatorMayEndBehindTheText) {
  EXPECT_EQ(list(u"a;", u";;"), (Taken{u"a", u""}));
}

TEST(ParseList, AQuoteInTheSeparatorClosesAnItem) {
  EXPECT_EQ(list(u"'abc ", u";'"), (Taken{u"abc", u""}));
}

TEST(ParseList, ManyLinesAreOneList) { EXPECT_EQ(list(u"a\r\nb c"), (Taken{u"a\r\nb", u"c"})); }

TEST(ParseListPlus, KeepsTheQuotes) {
  EXPECT_EQ(list_plus(u"'a b' c"), (Taken{u"'a b'", u"c"}));
  EXPECT_EQ(list_plus(u"\" a \" c"), (Taken{u"\"a\"", u"c"}));
  EXPECT_EQ(list_plus(u"'' c"), (Taken{u"''", u"c"}));
}

TEST(ParseListPlus, OtherItemsAreAsParseListGivesThem) {
  EXPECT_EQ(list_plus(u" a b"), (Taken{u"a", u"b"}));
  EXPECT_EQ(list_plus(u"'abc"), (Taken{u"", u"abc"}));
  EXPECT_EQ(list_plus(u"x;y", u" ;"), (Taken{u"x", u"y"}));
}

TEST(ParseFields, CountsInElementZero) {
  Array<String> fields = array_of(5, {u"old", u"contents"});
  EXPECT_EQ(kParse.ParseFields(u"a b c", String(u" "), fields), 3);
  EXPECT_EQ(texts_of(fields), (Texts{u"3", u"a", u"b", u"c"}));
  EXPECT_EQ(fields.lower(), 0);
}

TEST(ParseFields, AnEmptyTextHasNoFields) {
  Array<String> fields;
  EXPECT_EQ(kParse.ParseFields(u"", String(), fields), 0);
  EXPECT_EQ(texts_of(fields), (Texts{u"0"}));
}

TEST(ParseFields, BlanksAloneAreOneEmptyField) {
  Array<String> fields;
  EXPECT_EQ(kParse.ParseFields(u"  ", String(u";"), fields), 1);
  EXPECT_EQ(texts_of(fields), (Texts{u"1", u""}));
}

TEST(ParseFields, HoldsMoreFieldsThanOneStepOfGrowth) {
  std::u16string text;
  for (int number = 0; number < 1234; ++number) text += u"x;";
  Array<String> fields;
  EXPECT_EQ(kParse.ParseFields(text, String(u";"), fields), 1234);
  EXPECT_EQ(fields.upper(), 1234);
  EXPECT_EQ(fields.at(0).view(), u"1234");
  EXPECT_EQ(fields.at(1234).view(), u"x");
}

TEST(ParseFields, ALockedArrayIsAnError) {
  Array<String> fields = array_of(0, {u"kept"});
  const ArrayLock lock(fields);
  EXPECT_EQ(number_of([&] { kParse.ParseFields(u"a", String(), fields); }), 10);
  EXPECT_EQ(texts_of(fields), (Texts{u"kept"}));
}

TEST(ParseFields, TheSeparatorMayBeAnElementOfTheArray) {
  Array<String> fields = array_of(0, {u";"});
  EXPECT_EQ(kParse.ParseFields(u"a;b", fields.at(0), fields), 2);
  EXPECT_EQ(texts_of(fields), (Texts{u"2", u"a", u"b"}));
}

TEST(ParseFields, AgreesWithTheStepsOnRandomTexts) {
  reference::for_random_inputs(5, [](reference::Random& random) {
    const auto text = reference::pick_text(random, std::u16string_view(u"' ,\";;ab"), 60);
    const auto separator = reference::pick_text(random, std::u16string_view(u" ;a'"), 3);
    Texts expected = reference::parse_fields(text, separator);
    Array<String> fields;
    ASSERT_EQ(kParse.ParseFields(text, String(separator), fields),
              static_cast<std::int32_t>(expected.size()));
    const std::string count = std::to_string(expected.size());
    expected.insert(expected.begin(), std::u16string(count.begin(), count.end()));
    ASSERT_EQ(texts_of(fields), expected);
  });
}

std::u16string field(std::u16string_view text, const char16_t* separator, std::int32_t number) {
  return text_of(kParse.ParseString(text, String(separator), Variant(number)));
}

TEST(ParseString, EmptyFieldsCount) {
  EXPECT_EQ(field(u"a,,c", u",", 1), u"a");
  EXPECT_EQ(field(u"a,,c", u",", 2), u"");
  EXPECT_EQ(field(u"a,,c", u",", 3), u"c");
  EXPECT_EQ(field(u"a,,c", u",", 4), u"");
}

TEST(ParseString, FieldsAreNeitherTrimmedNorUnquoted) {
  EXPECT_EQ(field(u" a , 'b' ", u",", 1), u" a ");
  EXPECT_EQ(field(u" a , 'b' ", u",", 2), u" 'b' ");
}

TEST(ParseString, TheSeparatorMayHaveSeveralCharacters) {
  EXPECT_EQ(field(u"a<>b<>c", u"<>", 2), u"b");
  EXPECT_EQ(field(u"a;", u";;", 1), u"a");
  EXPECT_EQ(field(u"a;", u";;", 2), u"");
}

TEST(ParseString, AnEmptySeparatorGivesNothing) {
  EXPECT_EQ(field(u"abc", u"", 1), u"");
  EXPECT_EQ(field(u"abc", u"", 2'000'000'000), u"");
}

TEST(ParseString, NumbersBelowOneAreInvalid) {
  EXPECT_EQ(number_of([] { field(u"a,b", u",", 0); }), 5);
  EXPECT_EQ(number_of([] { field(u"a,b", u",", -3); }), 5);
  EXPECT_EQ(number_of([] { field(u"", u"", 0); }), 5);
}

TEST(ParseString, TheNumberIsConverted) {
  const auto at = [](Variant ix) {
    return text_of(kParse.ParseString(u"a,b,c", String(u","), std::move(ix)));
  };
  EXPECT_EQ(at(Variant(u" 2 ")), u"b");
  EXPECT_EQ(at(Variant(2.5)), u"b");
  EXPECT_EQ(number_of([&] { at(Variant(u"two")); }), 13);
  EXPECT_EQ(number_of([&] { at(Variant(3e9)); }), 6);
}

TEST(ParseString, AgreesWithTheStepsOnRandomTexts) {
  reference::for_random_inputs(6, [](reference::Random& random) {
    const auto text = reference::pick_text(random, std::u16string_view(u"a;; "), 20);
    const auto separator = reference::pick_text(random, std::u16string_view(u"a; "), 3);
    for (int number = 1; number <= 6; ++number) {
      ASSERT_EQ(field(text, separator.c_str(), number),
                reference::parse_string(text, separator, number));
    }
  });
}

// One variable for both parameters: the separator is read before the list changes.
TEST(ParseList, TheListMayBeItsOwnSeparator) {
  Variant variable(u"a b");
  String& buffer = reinterpret_cast<String&>(variable.address()->bstrVal);
  EXPECT_EQ(kParse.ParseList(buffer, variable).view(), u"");
  EXPECT_EQ(buffer.view(), u"");
}

}  // namespace
}  // namespace kw
