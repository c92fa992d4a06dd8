// ReplaceAllOccurs against its steps, which start again at the beginning after every replacement.
// Pairs that never end are left out here.
#include <gtest/gtest.h>

#include <string>

#include "kwutils/clsStringUtil.h"
#include "reference/all_texts.h"
#include "reference/random_inputs.h"
#include "reference/string_util.h"
#include "support/texts.h"

namespace kw {
namespace {

const clsStringUtil util;

std::u16string replaced(std::u16string_view text, std::u16string_view sought,
                        std::u16string_view by) {
  return testing::text_of(util.ReplaceAllOccurs(text, sought, by));
}

// A pair of which every step makes the text shorter, or takes some of the characters of what is
// sought out of it.
bool is_sure_to_end(std::u16string_view sought, std::u16string_view by) {
  return sought.empty() || by.size() < sought.size() ||
         by.find_first_of(sought) == std::u16string_view::npos;
}

void expect_agreement(std::u16string_view text, std::u16string_view sought,
                      std::u16string_view by) {
  const auto expected = reference::replace_all_occurs(std::u16string(text), std::u16string(sought),
                                                      std::u16string(by));
  ASSERT_EQ(replaced(text, sought, by), expected);
}

TEST(ReplaceAllOccurs, ReplacesEveryOccurrence) {
  EXPECT_EQ(replaced(u"a-b-c", u"-", u"+"), u"a+b+c");
  EXPECT_EQ(replaced(u"a-b-c", u"-", u""), u"abc");
  EXPECT_EQ(replaced(u"abc", u"x", u"y"), u"abc");
}

TEST(ReplaceAllOccurs, ChangesNothingForNothingSought) {
  EXPECT_EQ(replaced(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(replaced(u"", u"", u""), u"");
}

TEST(ReplaceAllOccurs, TellsUpperFromLowerCase) { EXPECT_EQ(replaced(u"aA", u"A", u"b"), u"ab"); }

TEST(ReplaceAllOccurs, ReplacesWhatAReplacementLeavesBehind) {
  EXPECT_EQ(replaced(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(replaced(u"aaaa", u"aa", u"a"), u"a");
  EXPECT_EQ(replaced(u"aabb", u"ab", u""), u"");
}

TEST(ReplaceAllOccurs, TakesAReplacementThatHoldsPartOfWhatIsSought) {
  EXPECT_EQ(replaced(u"xaby", u"ab", u"ba"), u"xbay");
  EXPECT_EQ(replaced(u"aabb", u"ab", u"ba"), u"bbaa");
  EXPECT_EQ(replaced(u"ab", u"ab", u"aaa"), u"aaa");
}

TEST(ReplaceAllOccurs, AgreesWithItsStepsOnAllShortTexts) {
  constexpr std::u16string_view kAlphabet = u"ab";
  reference::for_all_texts(kAlphabet, 3, [&](std::u16string_view sought) {
    reference::for_all_texts(std::u16string_view(u"abc"), 3, [&](std::u16string_view by) {
      if (!is_sure_to_end(sought, by)) return;
      reference::for_all_texts(
          kAlphabet, 6, [&](std::u16string_view text) { expect_agreement(text, sought, by); });
    });
  });
}

// "ba" for "ab" and its like: every step brings the letters nearer to their order.
TEST(ReplaceAllOccurs, AgreesWithItsStepsWhereReplacementsAreAsLongAsWhatIsSought) {
  reference::for_all_texts(std::u16string_view(u"abc"), 7, [](std::u16string_view text) {
    expect_agreement(text, u"ab", u"ba");
    expect_agreement(text, u"abb", u"bab");
    expect_agreement(text, u"cab", u"abc");
  });
}

TEST(ReplaceAllOccurs, AgreesWithItsStepsOnRandomTexts) {
  reference::for_random_inputs(4, [](reference::Random& random) {
    const auto letters = std::u16string_view(u"abc").substr(0, reference::pick(random, 1, 3));
    const std::u16string sought = reference::pick_text(random, letters, 6);
    const std::u16string by = reference::pick_text(random, letters, 6);
    if (!is_sure_to_end(sought, by)) return;
    expect_agreement(reference::pick_text(random, letters, 60), sought, by);
  });
}

// These would take hours if every step began at the beginning.
TEST(ReplaceAllOccurs, TakesTimeInProportionToTheText) {
  constexpr std::size_t kSize = 4'000'000;
  EXPECT_EQ(replaced(std::u16string(kSize, u'-'), u"-", u"+"), std::u16string(kSize, u'+'));
  EXPECT_EQ(replaced(std::u16string(kSize, u'\\'), u"\\\\", u"\\"), u"\\");
  const std::u16string nested = std::u16string(kSize, u'a') + std::u16string(kSize, u'b');
  EXPECT_EQ(replaced(nested, u"ab", u""), u"");
}

TEST(ReplaceAllOccurs, TakesTimeInProportionToTheTextForLongNearMisses) {
  const std::u16string run(1000, u'a');
  std::u16string text;
  std::u16string expected;
  for (int i = 0; i < 2000; ++i) {
    text += run + u"c" + run + u"b";
    expected += run + u"cx";
  }
  EXPECT_EQ(replaced(text, run + u"b", u"x"), expected);
}

}  // namespace
}  // namespace kw
