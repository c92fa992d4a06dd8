#include "reference/string_util.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "kwutils/clsStringUtil.h"
#include "kwutils/error.h"
#include "reference/all_texts.h"
#include "reference/random_inputs.h"
#include "support/texts.h"

namespace kw {
namespace {

using testing::text_of;

const clsStringUtil util;

// What a call gives; nothing when it overflows.
using Outcome = std::optional<std::u16string>;

template <class Call>
Outcome outcome_of(Call call) {
  try {
    return std::u16string(std::u16string_view(call()));
  } catch (const Error& error) {
    EXPECT_EQ(error.number, ErrorNumber::overflow);
    return std::nullopt;
  }
}

Outcome without_spaces(const std::u16string& text) {
  return outcome_of([&] { return util.RemoveSpaces(text); });
}
Outcome without_tabs(const std::u16string& text) {
  return outcome_of([&] { return util.ReplaceTabCharacterswithBlank(text); });
}
Outcome up_to_nul(const std::u16string& text) {
  return outcome_of([&] { return util.StrNoNull(text); });
}

void expect_agreement(const std::u16string& text) {
  ASSERT_EQ(without_spaces(text), outcome_of([&] { return reference::remove_spaces(text); }));
  ASSERT_EQ(without_tabs(text), outcome_of([&] { return reference::replace_tabs(text); }));
  ASSERT_EQ(up_to_nul(text), outcome_of([&] { return reference::str_no_null(text); }));
  ASSERT_EQ(text_of(util.InvertString(text)), reference::invert(text));
}

constexpr std::u16string_view kAlphabet = std::u16string_view(u" \t\0a", 4);

TEST(RemoveSpaces, TakesEveryBlankOut) {
  EXPECT_EQ(without_spaces(u"  a b  "), u"ab");
  EXPECT_EQ(without_spaces(u"   "), u"");
  EXPECT_EQ(without_spaces(u""), u"");
}

TEST(RemoveSpaces, KeepsOtherWhiteSpace) {
  EXPECT_EQ(without_spaces(u"\t\t"), u"\t\t");
  EXPECT_EQ(without_spaces(u"a\u00A0 \r\n"), u"a\u00A0\r\n");
}

TEST(RemoveSpaces, FailsWhenABlankIsLeftBeyondTheLast16BitPosition) {
  const std::u16string filler(32766, u'a');
  EXPECT_EQ(without_spaces(filler + u" b"), filler + u"b");
  EXPECT_EQ(without_spaces(filler + u"a b"), std::nullopt);
}

TEST(RemoveSpaces, CountsOnlyWhatIsLeftBeforeABlank) {
  const std::u16string blanks(40000, u' ');
  EXPECT_EQ(without_spaces(blanks + u"a" + blanks), u"a");
}

TEST(RemoveSpaces, TakesALongTextWithoutBlanks) {
  const std::u16string filler(100000, u'a');
  EXPECT_EQ(without_spaces(filler), filler);
}

TEST(OutStr, IsWhereTheLastOccurrenceEnds) {
  EXPECT_EQ(util.OutStr(u"abcabc", u"bc"), 6);
  EXPECT_EQ(util.OutStr(u"abc", u"abc"), 3);
  EXPECT_EQ(util.OutStr(u"a.b.c", u"."), 4);
  EXPECT_EQ(util.OutStr(u"aaa", u"aa"), 3);
}

TEST(OutStr, IsMinusOneWhenNothingIsFound) {
  EXPECT_EQ(util.OutStr(u"abc", u"x"), -1);
  EXPECT_EQ(util.OutStr(u"abc", u"abcd"), -1);
  EXPECT_EQ(util.OutStr(u"abc", u"B"), -1);
  EXPECT_EQ(util.OutStr(u"", u"a"), -1);
}

TEST(OutStr, FindsNothingAtTheEndOfAText) {
  EXPECT_EQ(util.OutStr(u"abc", u""), 3);
  EXPECT_EQ(util.OutStr(u"", u""), -1);
}

TEST(OutStr, AgreesWithItsStepsOnRandomTexts) {
  reference::for_random_inputs(3, [](reference::Random& random) {
    const std::u16string text = reference::pick_text(random, std::u16string_view(u"ab"), 30);
    const std::u16string sought = reference::pick_text(random, std::u16string_view(u"ab"), 5);
    ASSERT_EQ(util.OutStr(text, sought), reference::out_str(text, sought));
  });
}

TEST(InvertString, TurnsTheTextAround) {
  EXPECT_EQ(text_of(util.InvertString(u"abc")), u"cba");
  EXPECT_EQ(text_of(util.InvertString(u"")), u"");
}

TEST(StrNoNull, CutsAtTheFirstNul) {
  EXPECT_EQ(up_to_nul(std::u16string(u"ab\0c\0", 5)), u"ab");
  EXPECT_EQ(up_to_nul(std::u16string(u"\0abc", 4)), u"");
}

TEST(StrNoNull, KeepsATextWithoutNulWhole) {
  EXPECT_EQ(up_to_nul(u"abc"), u"abc");
  EXPECT_EQ(up_to_nul(u""), u"");
}

TEST(StrNoNull, FailsWhenTheFirstNulStandsBeyondTheLast16BitPosition) {
  const std::u16string filler(32766, u'a');
  const std::u16string nul(1, u'\0');
  EXPECT_EQ(up_to_nul(filler + nul), filler);
  EXPECT_EQ(up_to_nul(filler + u"a" + nul), std::nullopt);
}

TEST(ReplaceTabCharacterswithBlank, GivesOneBlankForEachTab) {
  EXPECT_EQ(without_tabs(u"a\t\tb"), u"a  b");
  EXPECT_EQ(without_tabs(u""), u"");
}

TEST(ReplaceTabCharacterswithBlank, FailsWhenATabStandsBeyondTheLast16BitPosition) {
  const std::u16string filler(32766, u'a');
  EXPECT_EQ(without_tabs(filler + u"\t"), filler + u" ");
  EXPECT_EQ(without_tabs(u"\t" + filler + u"\t"), std::nullopt);
}

TEST(NumStr, BeginsWithOneBlank) {
  EXPECT_EQ(text_of(util.NumStr(12)), u" 12");
  EXPECT_EQ(text_of(util.NumStr(0)), u" 0");
  EXPECT_EQ(text_of(util.NumStr(-3)), u" -3");
}

TEST(NumStr, WritesADigitBeforeThePoint) {
  EXPECT_EQ(text_of(util.NumStr(0.25f)), u" 0.25");
  EXPECT_EQ(text_of(util.NumStr(-0.25f)), u" -0.25");
  EXPECT_EQ(text_of(util.NumStr(0.5f)), u" 0.5");
}

TEST(NumStr, WritesAtMostSevenDigits) {
  EXPECT_EQ(text_of(util.NumStr(0.1f)), u" 0.1");
  EXPECT_EQ(text_of(util.NumStr(3.14159265f)), u" 3.141593");
  EXPECT_EQ(text_of(util.NumStr(16777216.0f)), u" 1.677722E+07");
}

TEST(NumStr, WritesAnExponentForVeryLargeAndVerySmallNumbers) {
  EXPECT_EQ(text_of(util.NumStr(1e20f)), u" 1E+20");
  EXPECT_EQ(text_of(util.NumStr(1.5e-5f)), u" 1.5E-05");
}

TEST(NumStr, MinusZeroIsZero) { EXPECT_EQ(text_of(util.NumStr(-0.0f)), u" 0"); }

TEST(clsStringUtil, AgreesWithItsStepsOnAllShortTexts) {
  reference::for_all_texts(
      kAlphabet, 5, [](std::u16string_view text) { expect_agreement(std::u16string(text)); });
}

TEST(clsStringUtil, AgreesWithItsStepsNearTheLast16BitPosition) {
  for (std::size_t filler = 32764; filler < 32768; ++filler) {
    reference::for_all_texts(kAlphabet, 1, [filler](std::u16string_view text) {
      expect_agreement(u" " + std::u16string(filler, u'a') + std::u16string(text));
    });
  }
}

}  // namespace
}  // namespace kw
