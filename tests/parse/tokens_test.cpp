#include <gtest/gtest.h>

#include "kwutils/clsParse.h"
#include "parse/values.h"
#include "reference/parse_token.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

const clsParse kParse;

std::u16string token(std::u16string_view text, const Variant& number = Variant::missing()) {
  return text_of(kParse.ParseToken(text, number));
}
std::u16string token(std::u16string_view text, std::int32_t number) {
  return token(text, Variant(number));
}

TEST(ParseToken, GivesTheTokenOfANumber) {
  EXPECT_EQ(token(u"  alpha beta", 2), u"beta");
  EXPECT_EQ(token(u"alpha", 2), u"");
  EXPECT_EQ(token(u"x", 0), u"");
  EXPECT_EQ(token(u"x", -1), u"");
}

TEST(ParseToken, TheNumberIsOneWhenLeftOut) { EXPECT_EQ(token(u"alpha beta"), u"alpha"); }

TEST(ParseToken, QuotedTokensKeepTheirBlanks) {
  EXPECT_EQ(token(u"'a b' c", 1), u"a b");
  EXPECT_EQ(token(u"'a b' c", 2), u"c");
  EXPECT_EQ(token(u"\" it's \" c", 1), u"it's");
}

TEST(ParseToken, AnUnclosedQuoteGivesNothing) {
  EXPECT_EQ(token(u"'a b c", 1), u"");
  EXPECT_EQ(token(u"x 'a b c", 1), u"x");
  EXPECT_EQ(token(u"x 'a b c", 2), u"");
  EXPECT_EQ(token(u"x 'a b c", 3), u"");
}

TEST(ParseToken, SkipsOneCommaBeforeAToken) {
  EXPECT_EQ(token(u"a ,b", 2), u"b");
  EXPECT_EQ(token(u"a, b", 1), u"a,");
  EXPECT_EQ(token(u", a", 1), u"");
  EXPECT_EQ(token(u", a", 2), u"a");
}

TEST(ParseToken, TheNumberIsConverted) {
  EXPECT_EQ(token(u"a b c", Variant(u"2")), u"b");
  EXPECT_EQ(token(u"a b c", Variant(2.5)), u"b");
  EXPECT_EQ(token(u"a b c", Variant(3.5)), u"");
}

TEST(ParseToken, AValueThatIsNoNumberGivesNothing) {
  EXPECT_EQ(token(u"a b", Variant(u"two")), u"");
  EXPECT_EQ(token(u"a b", Variant(1e10)), u"");
  EXPECT_EQ(token(u"a b", Variant(Object())), u"");
  EXPECT_EQ(token(u"a b", Variant()), u"");
}

TEST(ParseToken, TheCallersNumberIsNeverChanged) {
  const Variant number(u"2");
  token(u"a b", number);
  EXPECT_EQ(number.text().view(), u"2");
}

struct Tokens {
  std::int32_t count = 99;
  Texts array;
};

Tokens tokens(std::u16string_view text, std::int32_t scan_to, Array<String> array = {}) {
  Tokens result;
  EXPECT_EQ(kParse.ParseTokenArray(text, scan_to, array, result.count), 0);
  result.array = texts_of(array);
  return result;
}

TEST(ParseTokenArray, CountsTheEmptyTokenAfterTheLast) {
  const Tokens all = tokens(u"a b", 0);
  EXPECT_EQ(all.count, 3);
  EXPECT_EQ(all.array, (Texts{u"", u"a", u"b", u""}));
}

TEST(ParseTokenArray, StopsAtTheTokenAskedFor) {
  const Tokens one = tokens(u"a b", 1);
  EXPECT_EQ(one.count, 1);
  EXPECT_EQ(one.array, (Texts{u"", u"a"}));
  EXPECT_EQ(tokens(u"a b", 2).count, 2);
  EXPECT_EQ(tokens(u"a b", 3).count, 3);
  EXPECT_EQ(tokens(u"a b", 4).count, 3);
  EXPECT_EQ(tokens(u"a b", -1).count, 3);
}

TEST(ParseTokenArray, AnEmptyTextHasOneEmptyToken) {
  EXPECT_EQ(tokens(u"", 0).count, 1);
  EXPECT_EQ(tokens(u"", 0).array, (Texts{u"", u""}));
}

TEST(ParseTokenArray, AnUnclosedQuoteEndsTheScan) {
  const Tokens some = tokens(u"a 'b c", 0);
  EXPECT_EQ(some.count, 1);
  EXPECT_EQ(some.array, (Texts{u"", u"a"}));
}

TEST(ParseTokenArray, WithoutTokensTheArrayStaysAsItIs) {
  Array<String> array;
  std::int32_t count = 99;
  kParse.ParseTokenArray(u"'a", 0, array, count);
  EXPECT_EQ(count, 0);
  EXPECT_FALSE(array.dimensioned());
}

TEST(ParseTokenArray, ALargerArrayKeepsItsOtherElements) {
  const Tokens some = tokens(u"a b", 2, array_of(0, {u"0", u"1", u"2", u"3"}));
  EXPECT_EQ(some.array, (Texts{u"0", u"a", u"b", u"3"}));
}

TEST(ParseTokenArray, ASmallerArrayGrows) {
  const Tokens some = tokens(u"a b", 0, array_of(0, {u"0", u"1"}));
  EXPECT_EQ(some.array, (Texts{u"0", u"a", u"b", u""}));
}

TEST(ParseTokenArray, AnArrayFromOneOnDoesNotGrow) {
  const Tokens some = tokens(u"a b c", 0, array_of(1, {u"1", u"2"}));
  EXPECT_EQ(some.count, 4);
  EXPECT_EQ(some.array, (Texts{u"a", u"b"}));
}

TEST(ParseTokenArray, ALockedArrayTakesWhatFits) {
  Array<String> array = array_of(0, {u"0", u"1"});
  const ArrayLock lock(array);
  std::int32_t count = 0;
  kParse.ParseTokenArray(u"a b c", 0, array, count);
  EXPECT_EQ(count, 4);
  EXPECT_EQ(texts_of(array), (Texts{u"0", u"a"}));
}

TEST(ParseTokenArray, OneVariableMayBeLimitAndCount) {
  Array<String> array;
  std::int32_t number = 2;
  kParse.ParseTokenArray(u"a b c", number, array, number);
  EXPECT_EQ(number, 1);
  EXPECT_EQ(texts_of(array), (Texts{u"", u"a"}));
}

TEST(ParseTokenArray, TheTextMayBeAnElementOfTheArray) {
  Array<String> array = array_of(0, {u"", u"a b"});
  std::int32_t count = 0;
  kParse.ParseTokenArray(array.at(1), 0, array, count);
  EXPECT_EQ(texts_of(array), (Texts{u"", u"a", u"b", u""}));
}

reference::TextArray<char16_t> pick_array(reference::Random& random) {
  reference::TextArray<char16_t> array;
  array.dimensioned = reference::pick(random, 0, 3) != 0;
  if (!array.dimensioned) return array;
  array.locked = reference::pick(random, 0, 3) == 0;
  if (reference::pick(random, 0, 1) == 0) {
    array.lower = static_cast<int>(reference::pick(random, 0, 6)) - 4;
  }
  array.elements.assign(reference::pick(random, 0, 5), u"old");
  return array;
}

TEST(ParseTokenArray, AgreesWithTheStepsOnRandomTextsAndArrays) {
  reference::for_random_inputs(7, [](reference::Random& random) {
    const auto text = reference::pick_text(random, std::u16string_view(u"'  ,\"abc"), 20);
    const auto scan_to = static_cast<std::int32_t>(reference::pick(random, 0, 4)) - 1;
    auto expected = pick_array(random);
    Array<String> array;
    if (expected.dimensioned) array = array_of(expected.lower, expected.elements);
    if (expected.locked) SafeArrayLock(array.get());
    std::int32_t count = 0;
    kParse.ParseTokenArray(text, scan_to, array, count);
    if (expected.locked) SafeArrayUnlock(array.get());
    ASSERT_EQ(count, reference::parse_token_array(text, scan_to, expected));
    ASSERT_EQ(array.dimensioned(), expected.dimensioned);
    if (expected.dimensioned) {
      ASSERT_EQ(array.lower(), expected.lower);
    }
    ASSERT_EQ(texts_of(array), expected.elements);
  });
}

Texts lines(std::u16string_view text) {
  String buffer(text);
  const String line = kParse.ParseRecord(buffer);
  return {text_of(line), text_of(buffer)};
}

TEST(ParseRecord, TakesALineOff) {
  EXPECT_EQ(lines(u"one\r\ntwo"), (Texts{u"one", u"two"}));
  EXPECT_EQ(lines(u"one"), (Texts{u"one", u""}));
  EXPECT_EQ(lines(u""), (Texts{u"", u""}));
  EXPECT_EQ(lines(u"\r\none\r\n"), (Texts{u"", u"one\r\n"}));
}

TEST(ParseRecord, TheLineFeedShieldsTheBlanksOfTheNextLine) {
  EXPECT_EQ(lines(u"one \r\n  two"), (Texts{u"one ", u"  two"}));
}

TEST(ParseRecord, ALoneCarriageReturnEndsALine) {
  EXPECT_EQ(lines(u"one\r  two"), (Texts{u"one", u"two"}));
  EXPECT_EQ(lines(u"one\r  \n two"), (Texts{u"one", u" two"}));
}

TEST(ParseRecord, ALoneLineFeedEndsNone) {
  EXPECT_EQ(lines(u"one\ntwo\r\nthree"), (Texts{u"one\ntwo", u"three"}));
}

}  // namespace
}  // namespace kw
