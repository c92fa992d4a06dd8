#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/numeric_text.h"
#include "reference/all_texts.h"
#include "reference/numeric_text.h"
#include "reference/random_inputs.h"
#include "support/expect_error.h"

namespace kw {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint64_t bits(double value) { return std::bit_cast<std::uint64_t>(value); }

template <class Call>
void expect_overflow(Call call) {
  EXPECT_EQ(testing::error_of(call).number, ErrorNumber::overflow);
}

TEST(ParseNumber, ReadsWholeNumbersFractionsAndExponents) {
  EXPECT_EQ(parse_number(u"12"), 12.0);
  EXPECT_EQ(parse_number(u"-12.5"), -12.5);
  EXPECT_EQ(parse_number(u"+1.5e3"), 1500.0);
  EXPECT_EQ(parse_number(u"15E-1"), 1.5);
  EXPECT_EQ(parse_number("007"), 7.0);
}

TEST(ParseNumber, EitherSideOfThePointMayBeMissingButNotBoth) {
  EXPECT_EQ(parse_number(u".5"), 0.5);
  EXPECT_EQ(parse_number(u"5."), 5.0);
  EXPECT_EQ(parse_number(u"."), std::nullopt);
  EXPECT_EQ(parse_number(u"-.e5"), std::nullopt);
}

TEST(ParseNumber, BlanksMaySurroundTheNumberButNotDivideIt) {
  EXPECT_EQ(parse_number(u"  12  "), 12.0);
  EXPECT_EQ(parse_number(u"1 2"), std::nullopt);
  EXPECT_EQ(parse_number(u"- 1"), std::nullopt);
  EXPECT_EQ(parse_number(u"1 e5"), std::nullopt);
  EXPECT_EQ(parse_number(u"\t12"), std::nullopt);
  EXPECT_EQ(parse_number(u"\u00A012"), std::nullopt);
}

TEST(ParseNumber, OtherNotationsAreNoNumbers) {
  for (const char* text : {"",     " ",    "abc", "12abc", "nan",   "inf",   "-inf",  "infinity",
                           "0x10", "&H10", "1d3", "1,5",   "1,000", "$5",    "1e",    "1e+",
                           "e5",   "--1",  "+-1", "1-",    "(1)",   "1.2.3", "1e5.0", "1_0"}) {
    EXPECT_EQ(parse_number(text), std::nullopt) << text;
  }
}

TEST(ParseNumber, DigitsOfOtherScriptsAndNulAreNoDigits) {
  EXPECT_EQ(parse_number(u"\uFF11"), std::nullopt);
  EXPECT_EQ(parse_number(u"\u0661"), std::nullopt);
  EXPECT_EQ(parse_number(std::u16string_view(u"1\0", 2)), std::nullopt);
  EXPECT_EQ(parse_number(u"\u0131"), std::nullopt);
}

TEST(ParseNumber, MinusZeroKeepsItsSign) {
  EXPECT_EQ(bits(parse_number(u"-0").value()), bits(-0.0));
  EXPECT_EQ(bits(parse_number(u"-1e-999").value()), bits(-0.0));
}

TEST(ParseNumber, ANumberTooLargeIsNumericAndInfinite) {
  EXPECT_EQ(parse_number(u"1e309"), kInfinity);
  EXPECT_EQ(parse_number(u"-1e999"), -kInfinity);
  EXPECT_EQ(parse_number(u"1e99999999999999999999999999"), kInfinity);
  EXPECT_EQ(parse_number(u"1.7976931348623159e308"), kInfinity);
  EXPECT_EQ(parse_number(u"1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(ParseNumber, ANumberTooSmallIsZero) {
  EXPECT_EQ(parse_number(u"1e-400"), 0.0);
  EXPECT_EQ(parse_number(u"1e-99999999999999999999999999"), 0.0);
  EXPECT_EQ(parse_number(u"2.4e-324"), 0.0);
  EXPECT_EQ(parse_number(u"2.5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(ParseNumber, ZeroWithAnyExponentIsZero) {
  EXPECT_EQ(parse_number(u"0e999999"), 0.0);
  EXPECT_EQ(parse_number(u"0.000e-999999"), 0.0);
}

TEST(ParseNumber, ManyZerosAndAnExponentMakeUpForEachOther) {
  EXPECT_EQ(parse_number("1" + std::string(2000, '0') + "e-2000"), 1.0);
  EXPECT_EQ(parse_number("0." + std::string(2000, '0') + "1e2001"), 1.0);
  EXPECT_EQ(parse_number(std::string(5000, '0') + "7"), 7.0);
}

TEST(ParseNumber, AMiddleOfTwoNeighboursGoesToTheEvenOne) {
  EXPECT_EQ(parse_number(u"9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(parse_number(u"9007199254740995"), 9007199254740996.0);
}

TEST(ParseNumber, EveryDigitCountsHoweverFarBehind) {
  EXPECT_EQ(parse_number("9007199254740993." + std::string(3000, '0')), 9007199254740992.0);
  EXPECT_EQ(parse_number("9007199254740993." + std::string(3000, '0') + "1"), 9007199254740994.0);
  EXPECT_EQ(parse_number("9007199254740993" + std::string(3000, '0') + "1e-3001"),
            9007199254740994.0);
}

// The decimal digits of number * 5^power.
std::string digits_of(std::uint64_t number, int power) {
  std::string digits = std::to_string(number);
  for (; power > 0; --power) {
    int carry = 0;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
      carry += 5 * (*digit - '0');
      *digit = static_cast<char>('0' + carry % 10);
      carry /= 10;
    }
    if (carry != 0) digits.insert(0, 1, static_cast<char>('0' + carry));
  }
  return digits;
}

// Between the two largest numbers below the normal ones lies a middle of 768 digits.
TEST(ParseNumber, TheLongestMiddleOfTwoNeighboursIsReadInFull) {
  const double below = 0x0.FFFFFFFFFFFFEp-1022;
  const double above = 0x0.FFFFFFFFFFFFFp-1022;
  const std::string middle = "0." + std::string(307, '0') + digits_of((1ull << 53) - 3, 1075);
  ASSERT_EQ(middle.size(), 2 + 1075u);
  EXPECT_EQ(parse_number(middle), below);
  EXPECT_EQ(parse_number(middle + "000"), below);
  EXPECT_EQ(parse_number(middle + "0001"), above);
  std::string less = middle + "999";
  less[middle.size() - 1] = '4';
  ASSERT_EQ(middle.back(), '5');
  EXPECT_EQ(parse_number(less), below);
}

void expect_agreement(std::string_view text) {
  const std::u16string wide = widen(text);
  const auto number = parse_number(text);
  ASSERT_EQ(number.has_value(), reference::is_numeric(text)) << "'" << text << "'";
  ASSERT_EQ(number, parse_number(wide));
  if (number) {
    ASSERT_EQ(bits(*number), bits(reference::number_value(text))) << "'" << text << "'";
  }
  const LeadingNumber leading = leading_number(text);
  const std::size_t length = reference::numeric_prefix(text);
  ASSERT_EQ(leading.length, length) << "'" << text << "'";
  ASSERT_EQ(bits(leading.value),
            bits(length == 0 ? 0.0 : reference::number_value(text.substr(0, length))));
  const LeadingNumber leading_wide = leading_number(wide);
  ASSERT_EQ(leading_wide.length, length);
  ASSERT_EQ(bits(leading_wide.value), bits(leading.value));
}

TEST(ParseNumber, AgreesWithTheReferenceOnAllShortTexts) {
  const std::size_t longest = reference::long_tests() ? 7 : 6;
  reference::for_all_texts(std::string_view(" +-.5eE"), longest, expect_agreement);
}

TEST(ParseNumber, AgreesWithTheReferenceOnRandomTexts) {
  reference::for_random_inputs(4, [](reference::Random& random) {
    expect_agreement(reference::pick_text(random, std::string_view(" +-..0123456789eEx\0\t"), 12));
  });
}

TEST(ParseNumber, AgreesWithTheReferenceOnRandomNumbers) {
  reference::for_random_inputs(5, [](reference::Random& random) {
    std::string text = reference::pick_text(random, std::string_view("0123456789"), 40);
    text += "." + reference::pick_text(random, std::string_view("0123456789"), 40);
    text += "5e" + std::to_string(static_cast<int>(reference::pick(random, 0, 700)) - 350);
    expect_agreement(text);
  });
}

TEST(LeadingNumber, TakesTheLongestPrefixThatIsANumber) {
  EXPECT_EQ(leading_number(u"12abc").value, 12);
  EXPECT_EQ(leading_number(u"12abc").length, 2u);
  EXPECT_EQ(leading_number(u" 12 kg").length, 4u);
  EXPECT_EQ(leading_number(u"1e").length, 1u);
  EXPECT_EQ(leading_number(u"1e+x").length, 1u);
  EXPECT_EQ(leading_number(u"5.x").length, 2u);
  EXPECT_EQ(leading_number(u"1.2.3").value, 1.2);
}

TEST(LeadingNumber, IsZeroOfLengthZeroWhereNoNumberStands) {
  for (const char16_t* text : {u"", u"  ", u"abc", u".", u"-", u" +.e5"}) {
    EXPECT_EQ(leading_number(text).value, 0);
    EXPECT_EQ(leading_number(text).length, 0u);
  }
}

TEST(DecimalSeparator, CanBeTheHosts) {
  set_decimal_separator(u',');
  EXPECT_EQ(parse_number(u"1,5"), 1.5);
  EXPECT_EQ(parse_number("1,5"), 1.5);
  EXPECT_EQ(parse_number(u"1.5"), std::nullopt);
  set_decimal_separator(u'.');
  EXPECT_EQ(parse_number(u"1.5"), 1.5);
}

TEST(ToInt16, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(to_int16(0.5), 0);
  EXPECT_EQ(to_int16(1.5), 2);
  EXPECT_EQ(to_int16(2.5), 2);
  EXPECT_EQ(to_int16(-0.5), 0);
  EXPECT_EQ(to_int16(-1.5), -2);
  EXPECT_EQ(to_int16(-2.5), -2);
  EXPECT_EQ(to_int16(2.4999999), 2);
  EXPECT_EQ(to_int16(2.5000001), 3);
}

TEST(ToInt16, ReachesFromItsLeastToItsGreatest) {
  EXPECT_EQ(to_int16(32767.4999), 32767);
  EXPECT_EQ(to_int16(-32768.5), -32768);
  expect_overflow([] { to_int16(32767.5); });
  expect_overflow([] { to_int16(-32768.51); });
}

TEST(ToInt32, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(to_int32(1234567.5), 1234568);
  EXPECT_EQ(to_int32(1234568.5), 1234568);
}

TEST(ToInt32, ReachesFromItsLeastToItsGreatest) {
  EXPECT_EQ(to_int32(2147483647.4999), 2147483647);
  EXPECT_EQ(to_int32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  expect_overflow([] { to_int32(2147483647.5); });
  expect_overflow([] { to_int32(-2147483648.6); });
}

TEST(ToInt32, InfinityAndNotANumberOverflow) {
  expect_overflow([] { to_int32(kInfinity); });
  expect_overflow([] { to_int32(-kInfinity); });
  expect_overflow([] { to_int32(std::nan("")); });
  expect_overflow([] { to_int16(std::nan("")); });
}

TEST(ToSingle, RoundsToTheNearestSingle) {
  EXPECT_EQ(to_single(0.1), 0.1F);
  EXPECT_EQ(to_single(1e-60), 0.0F);
  EXPECT_EQ(to_single(0x1.FFFFFEFFFFFFFp127), std::numeric_limits<float>::max());
}

TEST(ToSingle, OverflowsFromWhereTheNearestSingleWouldBeInfinite) {
  expect_overflow([] { to_single(0x1.FFFFFFp127); });
  expect_overflow([] { to_single(-1e39); });
  expect_overflow([] { to_single(kInfinity); });
}

TEST(ToDouble, OverflowsOnInfinityAlone) {
  EXPECT_EQ(to_double(std::numeric_limits<double>::max()), std::numeric_limits<double>::max());
  expect_overflow([] { to_double(kInfinity); });
  expect_overflow([] { to_double(-kInfinity); });
}

}  // namespace
}  // namespace kw
