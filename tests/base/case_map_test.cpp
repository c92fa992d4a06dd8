#include "base/case_map.h"

#include <gtest/gtest.h>

namespace kw {
namespace {

std::u16string all_units() {
  std::u16string units;
  for (unsigned unit = 0; unit < 0x10000; ++unit) units.push_back(static_cast<char16_t>(unit));
  return units;
}

TEST(CaseMap, AsciiLettersChangeAndNothingElseInAsciiDoes) {
  for (char16_t unit = 0; unit < 0x80; ++unit) {
    const bool small = unit >= u'a' && unit <= u'z';
    const bool capital = unit >= u'A' && unit <= u'Z';
    EXPECT_EQ(to_upper(unit), small ? unit - 0x20 : unit);
    EXPECT_EQ(to_lower(unit), capital ? unit + 0x20 : unit);
  }
}

TEST(CaseMap, TheFastPathAgreesWithTheTable) {
  for (char16_t unit = 0; unit < 0x80; ++unit) {
    EXPECT_EQ(to_upper(unit), detail::map_case(detail::kUpperBlock, unit));
    EXPECT_EQ(to_lower(unit), detail::map_case(detail::kLowerBlock, unit));
  }
}

TEST(CaseMap, LettersOfEveryScriptOfThePlaneHaveBothCases) {
  const std::u16string small = u"àÿœšžćœǆάωяёաⴀꭰჰⓐａ";
  const std::u16string capital = u"ÀŸŒŠŽĆŒǄΆΩЯЁԱႠᎠᲰⒶＡ";
  EXPECT_EQ(upper(small), capital);
  EXPECT_EQ(lower(capital), small);
}

TEST(CaseMap, LettersWithoutASimpleUpperCaseStay) { EXPECT_EQ(upper(u"ßŉǰΐẖﬁ"), u"ßŉǰΐẖﬁ"); }

TEST(CaseMap, IotaSubscriptStaysOneCodeUnit) {
  EXPECT_EQ(upper(u"\u1F80\u1FB3"), u"\u1F88\u1FBC");
  EXPECT_EQ(lower(u"\u1F88\u1FBC"), u"\u1F80\u1FB3");
  EXPECT_EQ(to_upper(u'\u1F88'), u'\u1F88');
}

TEST(CaseMap, SeveralLettersShareOneCapital) {
  EXPECT_EQ(upper(u"sſiıkåµμςσ"), u"SSIIKÅ\u039C\u039CΣΣ");
}

TEST(CaseMap, SeveralCapitalsShareOneSmallLetter) {
  EXPECT_EQ(lower(u"I\u0130K\u212A\u00C5\u212Bẞ"), u"iikk\u00E5\u00E5ß");
}

TEST(CaseMap, TitleCaseLettersHaveBothCases) {
  EXPECT_EQ(to_upper(u'ǅ'), u'Ǆ');
  EXPECT_EQ(to_lower(u'ǅ'), u'ǆ');
}

TEST(CaseMap, SurrogatesStay) {
  for (unsigned unit = 0xD800; unit < 0xE000; ++unit) {
    EXPECT_EQ(to_upper(static_cast<char16_t>(unit)), unit);
    EXPECT_EQ(to_lower(static_cast<char16_t>(unit)), unit);
  }
}

TEST(CaseMap, MappingTwiceIsMappingOnce) {
  for (const char16_t unit : all_units()) {
    ASSERT_EQ(to_upper(to_upper(unit)), to_upper(unit)) << unsigned{unit};
    ASSERT_EQ(to_lower(to_lower(unit)), to_lower(unit)) << unsigned{unit};
  }
}

TEST(CaseMap, TheTableHoldsEveryMapping) {
  unsigned to_capital = 0;
  unsigned to_small = 0;
  for (const char16_t unit : all_units()) {
    to_capital += to_upper(unit) != unit;
    to_small += to_lower(unit) != unit;
  }
  EXPECT_EQ(to_capital, 1190u);
  EXPECT_EQ(to_small, 1173u);
}

TEST(CaseMap, WholeTextsAgreeWithSingleCodeUnits) {
  const std::u16string units = all_units();
  for (std::size_t start = 0; start < 5; ++start) {
    const std::u16string_view text = std::u16string_view(units).substr(start);
    const std::u16string capital = upper(text);
    const std::u16string small = lower(text);
    ASSERT_EQ(capital.size(), text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
      ASSERT_EQ(capital[at], to_upper(text[at]));
      ASSERT_EQ(small[at], to_lower(text[at]));
    }
  }
}

TEST(CaseMap, MapsInPlaceAndOnlyTheSpanGiven) {
  std::u16string text = u"abcdéfghij";
  make_upper(std::span(text).subspan(1, 7));
  EXPECT_EQ(text, u"aBCDÉFGHij");
  make_lower(std::span(text).subspan(2, 2));
  EXPECT_EQ(text, u"aBcdÉFGHij");
}

TEST(CaseMap, EmptyTextStaysEmpty) {
  EXPECT_EQ(upper(u""), u"");
  EXPECT_EQ(lower({}), u"");
}

}  // namespace
}  // namespace kw
