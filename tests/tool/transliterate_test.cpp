#include "tool/transliterate.h"

#include <gtest/gtest.h>

#include "base/code_page.h"
#include "tool/transliteration_table.h"

namespace kw::tool {
namespace {

std::u16string spelt(std::u16string_view text) {
  return nearest_spelling(text).value_or(u"(none)");
}

TEST(NearestSpelling, DropsMarksThatThePageLacks) {
  EXPECT_EQ(spelt(u"Ājīvika Čad"), u"Ajivika Cad");
}

TEST(NearestSpelling, KeepsTheMarkThatThePageHas) {
  EXPECT_EQ(spelt(u"Thừa Huế"), u"Thùa Huê");
  EXPECT_EQ(spelt(u"ǟ"), u"ä");
}

TEST(NearestSpelling, ComposesALetterAndItsMark) { EXPECT_EQ(spelt(u"e\u0301a\u0327"), u"éa"); }

TEST(NearestSpelling, HasPlainLettersForStruckOnes) {
  EXPECT_EQ(spelt(u"Łódź Đà Ħaż"), u"Lódz Dà Haz");
}

TEST(NearestSpelling, HasSpecialLetters) { EXPECT_EQ(spelt(u"Bərdə ʻIlm ı"), u"Berde ‘Ilm i"); }

TEST(NearestSpelling, MakesWhiteSpaceBlank) {
  EXPECT_EQ(spelt(u" a\tb\u00A0c\r\nd\n"), u"a b c d");
}

TEST(NearestSpelling, LeavesThePageAlone) { EXPECT_EQ(spelt(u"Žižka's “€”"), u"Žižka's “€”"); }

TEST(NearestSpelling, GivesUpOnOtherScripts) {
  EXPECT_EQ(nearest_spelling(u"Москва"), std::nullopt);
  EXPECT_EQ(nearest_spelling(u"😀"), std::nullopt);
}

TEST(NearestSpelling, GivesUpWhereNothingIsLeft) {
  EXPECT_EQ(nearest_spelling(u"\u0327 "), std::nullopt);
}

TEST(NearestSpelling, HoldsNothingThatThePageLacks) {
  for (const Spelling& spelling : kSpellings)
    for (const char16_t unit : std::u16string_view(spelling.text)) EXPECT_TRUE(encode(unit));
  for (const Composition& composition : kCompositions) EXPECT_TRUE(encode(composition.composed));
}

TEST(NearestSpelling, HasItsTableInOrder) {
  for (std::size_t i = 1; i < std::size(kSpellings); ++i)
    ASSERT_LT(kSpellings[i - 1].unit, kSpellings[i].unit);
}

TEST(WithoutApostrophes, WritesTypographicOnes) {
  EXPECT_EQ(without_apostrophes(u"L'A'"), u"L’A’");
}

}  // namespace
}  // namespace kw::tool
