#include <gtest/gtest.h>

#include <bit>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

#include "base/numeric_text.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

std::string as_printf(const char* format, double value) {
  char text[64];
  const int length = std::snprintf(text, sizeof text, format, value);
  return {text, static_cast<std::size_t>(length)};
}

TEST(NumberText, WholeNumbersHaveNoPoint) {
  EXPECT_EQ(number_text(12.0), u"12");
  EXPECT_EQ(number_text(-3.0F), u"-3");
  EXPECT_EQ(number_text(100000.0F), u"100000");
}

TEST(NumberText, FractionsKeepTheirZeroAndLoseTrailingOnes) {
  EXPECT_EQ(number_text(0.5), u"0.5");
  EXPECT_EQ(number_text(-0.25F), u"-0.25");
  EXPECT_EQ(number_text(1.50), u"1.5");
  EXPECT_EQ(number_text(0.0001), u"0.0001");
}

TEST(NumberText, SinglesHaveSevenDigitsAndDoublesFifteen) {
  EXPECT_EQ(number_text(0.1F), u"0.1");
  EXPECT_EQ(number_text(1.0F / 3), u"0.3333333");
  EXPECT_EQ(number_text(1.0 / 3), u"0.333333333333333");
  EXPECT_EQ(number_text(0.1 + 0.2), u"0.3");
}

TEST(NumberText, LargeAndSmallNumbersHaveAnExponentOfTwoDigitsOrMore) {
  EXPECT_EQ(number_text(1e7F), u"1E+07");
  EXPECT_EQ(number_text(9999999.0F), u"9999999");
  EXPECT_EQ(number_text(16777216.0F), u"1.677722E+07");
  EXPECT_EQ(number_text(0.00001), u"1E-05");
  EXPECT_EQ(number_text(1e15), u"1E+15");
  EXPECT_EQ(number_text(999999999999999.0), u"999999999999999");
  EXPECT_EQ(number_text(-1.5e-300), u"-1.5E-300");
}

TEST(NumberText, MinusZeroIsZero) {
  EXPECT_EQ(number_text(-0.0), u"0");
  EXPECT_EQ(number_text(-0.0F), u"0");
  EXPECT_EQ(number_text(0.0), u"0");
}

TEST(NumberText, WholeNumbersOfThirtyTwoBitsAreWrittenInFull) {
  EXPECT_EQ(number_text(std::int32_t{0}), u"0");
  EXPECT_EQ(number_text(std::numeric_limits<std::int32_t>::max()), u"2147483647");
  EXPECT_EQ(number_text(std::numeric_limits<std::int32_t>::min()), u"-2147483648");
}

TEST(NumberText, TheLongestNumbersFitTheBuffer) {
  EXPECT_EQ(std::string_view(write_number(-1.23456789012345e-308)), "-1.23456789012345E-308");
  EXPECT_EQ(std::string_view(write_number(-0.000123456789012345)), "-0.000123456789012345");
}

TEST(NumberText, DoublesAreWrittenAsTheCLibraryWritesThem) {
  reference::for_random_inputs(6, [](reference::Random& random) {
    const double value = std::bit_cast<double>(random());
    if (value != value) return;
    ASSERT_EQ(std::string_view(write_number(value)), as_printf("%.15G", value));
    const double middling = static_cast<double>(random() % 100000000) / 4096;
    ASSERT_EQ(std::string_view(write_number(middling)), as_printf("%.15G", middling));
  });
}

TEST(NumberText, SinglesAreWrittenAsTheCLibraryWritesThem) {
  reference::for_random_inputs(7, [](reference::Random& random) {
    const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (value != value || value == 0) return;
    ASSERT_EQ(std::string_view(write_number(value)), as_printf("%.7G", double{value}));
    const float middling = static_cast<float>(random() % 1000000) / 128;
    ASSERT_EQ(std::string_view(write_number(middling)), as_printf("%.7G", double{middling}));
  });
}

}  // namespace
}  // namespace kw
