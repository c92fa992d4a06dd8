#include <gtest/gtest.h>

#include <string>

#include "kwutils/clsDataEdtUtils.h"
#include "reference/number_fields.h"

namespace kw {
namespace {

const clsDataEdtUtils entry;

struct Box {
  std::u16string text = u"12";
  std::int16_t max_length = 10;
  std::int16_t selected = 0;
  std::int16_t positive = 0;
};

std::int16_t integer_key(std::int16_t key, const Box& box) {
  entry.CheckInteger(key, box.positive, String(box.text), box.max_length, box.selected);
  return key;
}

std::int16_t real_key(std::int16_t key, const Box& box) {
  entry.CheckReal(key, box.positive, String(box.text), box.max_length, box.selected);
  return key;
}

TEST(CheckInteger, TakesDigits) {
  for (const std::int16_t digit : {'0', '5', '9'}) EXPECT_EQ(integer_key(digit, {}), digit);
}

TEST(CheckInteger, TakesTheTwoCharactersBehindTheDigits) {
  EXPECT_EQ(integer_key(':', {}), ':');
  EXPECT_EQ(integer_key(';', {}), ';');
  EXPECT_EQ(integer_key('<', {}), 0);
}

TEST(CheckInteger, RejectsWhatIsNoPartOfAWholeNumber) {
  for (const char key : {'\0', '\t', '\r', ' ', '/', '.', '+', 'a'})
    EXPECT_EQ(integer_key(key, {}), 0) << key;
  EXPECT_EQ(integer_key(-'0', {}), 0);
  EXPECT_EQ(integer_key(0x100 + '0', {}), 0);
}

TEST(CheckInteger, TakesOneMinusAtAnyPlace) {
  EXPECT_EQ(integer_key('-', {.text = u"12"}), '-');
  EXPECT_EQ(integer_key('-', {.text = u"-12"}), 0);
  EXPECT_EQ(integer_key('-', {.text = u"1-2"}), 0);
}

TEST(CheckInteger, TakesNoMinusForPositiveNumbers) {
  EXPECT_EQ(integer_key('-', {.positive = -1}), 0);
  EXPECT_EQ(integer_key('-', {.positive = 1}), 0);
}

TEST(CheckInteger, RejectsADigitInAFullBox) {
  EXPECT_EQ(integer_key('3', {.text = u"12", .max_length = 3}), '3');
  EXPECT_EQ(integer_key('3', {.text = u"12", .max_length = 2}), 0);
  EXPECT_EQ(integer_key('3', {.text = u"12", .max_length = -1}), 0);
}

TEST(CheckInteger, TakesADigitInPlaceOfASelection) {
  EXPECT_EQ(integer_key('3', {.text = u"12", .max_length = 2, .selected = 1}), '3');
  EXPECT_EQ(integer_key('3', {.text = u"12", .max_length = 2, .selected = -1}), '3');
}

TEST(CheckInteger, AlwaysTakesBackspace) {
  EXPECT_EQ(integer_key(8, {.text = u"12", .max_length = 2}), 8);
}

TEST(CheckReal, TakesOnePoint) {
  EXPECT_EQ(real_key('.', {.text = u"12"}), '.');
  EXPECT_EQ(real_key('.', {.text = u"1.2"}), 0);
}

TEST(CheckReal, TakesTheRestAsForWholeNumbers) {
  EXPECT_EQ(real_key('7', {}), '7');
  EXPECT_EQ(real_key('-', {.text = u"-1"}), 0);
  EXPECT_EQ(real_key('.', {.text = u"12", .max_length = 2}), 0);
  EXPECT_EQ(real_key('e', {}), 0);
}

void expect_agreement(std::int16_t key, const Box& box) {
  for (const bool real : {false, true}) {
    ASSERT_EQ(
        real ? real_key(key, box) : integer_key(key, box),
        reference::check_number(key, box.positive, box.text, box.max_length, box.selected, real))
        << key;
  }
}

TEST(CheckReal, AgreesWithItsStepsForEveryKey) {
  for (const auto* text : {u"", u"1", u"-", u".", u"-."}) {
    for (const std::int16_t flags :
         {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
      for (std::int16_t key = -300; key < 300; ++key) {
        expect_agreement(key, {.text = text,
                               .max_length = 1,
                               .selected = static_cast<std::int16_t>(flags & 1),
                               .positive = static_cast<std::int16_t>(flags & 2)});
      }
    }
  }
}

std::int16_t valid_key(std::int16_t key, std::u16string_view set, Boolean editable = false) {
  return entry.ValiText(key, String(set), editable);
}

TEST(ValiText, TakesTheCharactersOfTheSetInEitherCase) {
  EXPECT_EQ(valid_key('a', u"abc"), 'a');
  EXPECT_EQ(valid_key('A', u"abc"), 'A');
  EXPECT_EQ(valid_key('b', u"ABC"), 'b');
  EXPECT_EQ(valid_key('d', u"abc"), 0);
  EXPECT_EQ(valid_key('a', u""), 0);
}

TEST(ValiText, TakesBackspaceWhenExactlyTrue) {
  EXPECT_EQ(valid_key(8, u"abc", true), 8);
  EXPECT_EQ(valid_key(8, u"abc", false), 0);
  EXPECT_EQ(valid_key(8, u"abc", Boolean::from_bits(1)), 0);
  EXPECT_EQ(valid_key(8, u"\b", false), 8);
}

TEST(ValiText, ReadsCodesInTheCodePage) {
  EXPECT_EQ(valid_key(0x80, u"\u20AC"), 0x80);
  EXPECT_EQ(valid_key(0xFF, u"\u0178"), 0xFF);
}

TEST(ValiText, RejectsCodesThatAreNoByte) {
  EXPECT_EQ(valid_key(256, u"\u0100"), 0);
  EXPECT_EQ(valid_key(-1, u"\u00FF\uFFFF"), 0);
}

}  // namespace
}  // namespace kw
