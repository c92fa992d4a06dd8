#include "base/unicode.h"

#include <gtest/gtest.h>

#include "reference/all_texts.h"

namespace kw {
namespace {

TEST(Unicode, CharactersOfEveryLengthGoBothWays) {
  const std::string bytes = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z";
  const std::u16string text = u"aé€\U0001F600z";
  EXPECT_EQ(from_utf8(bytes), text);
  EXPECT_EQ(to_utf8(text), bytes);
}

TEST(Unicode, NulIsACharacterLikeAnyOther) {
  EXPECT_EQ(from_utf8(std::string_view("a\0b", 3)), std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(to_utf8(std::u16string_view(u"a\0b", 3)), std::string_view("a\0b", 3));
}

TEST(Unicode, EveryCodeUnitSurvives) {
  for (unsigned number = 0; number < 0x10000; ++number) {
    const std::u16string text = {u'x', static_cast<char16_t>(number), u'x'};
    ASSERT_EQ(from_utf8(to_utf8(text)), text) << number;
  }
}

TEST(Unicode, EveryCharacterOutsideThePlaneSurvives) {
  for (char32_t character = 0x10000; character < 0x110000; character += 0xFB) {
    const auto high = static_cast<char16_t>(0xD7C0 + (character >> 10));
    const auto low = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    const std::u16string text = {high, low};
    ASSERT_EQ(to_utf8(text).size(), 4u);
    ASSERT_EQ(from_utf8(to_utf8(text)), text);
  }
}

TEST(Unicode, EveryMixtureOfSurrogatesSurvives) {
  reference::for_all_texts(
      std::u16string_view(u"a\u20AC\xD800\xDBFF\xDC00\xDFFF"), 6,
      [](std::u16string_view text) { ASSERT_EQ(from_utf8(to_utf8(text)), text); });
}

TEST(Unicode, ALoneSurrogateIsThreeBytes) {
  EXPECT_EQ(to_utf8(u"\xD83D"), "\xED\xA0\xBD");
  EXPECT_EQ(from_utf8("\xED\xA0\xBD"), u"\xD83D");
}

TEST(Unicode, TwoSurrogatesOfThreeBytesAreReadAsThePair) {
  EXPECT_EQ(from_utf8("\xED\xA0\xBD\xED\xB8\x80"), u"\U0001F600");
}

TEST(Unicode, IllFormedBytesAreReadAsReplacementCharacters) {
  EXPECT_EQ(from_utf8("a\x80z"), u"a\uFFFDz");
  EXPECT_EQ(from_utf8("a\xFFz"), u"a\uFFFDz");
  EXPECT_EQ(from_utf8("a\xC3z"), u"a\uFFFDz");
  EXPECT_EQ(from_utf8("\xE2\x82"), u"\uFFFD");
  EXPECT_EQ(from_utf8("\xF0\x9F\x98"), u"\uFFFD");
  EXPECT_EQ(from_utf8("\xE2\x82\xC3\xA9"), u"\uFFFDé");
}

TEST(Unicode, OverlongAndTooLargeNumbersAreIllFormed) {
  EXPECT_EQ(from_utf8("\xC0\x80"), u"\uFFFD\uFFFD");
  EXPECT_EQ(from_utf8("\xE0\x9F\xBF"), u"\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(from_utf8("\xF0\x8F\xBF\xBF"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(from_utf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace kw
