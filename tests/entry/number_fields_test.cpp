#include "reference/number_fields.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "entry/fake_control.h"
#include "kwutils/clsDataEdtUtils.h"
#include "reference/all_texts.h"
#include "support/expect_error.h"
#include "support/texts.h"

namespace kw {
namespace {

const clsDataEdtUtils entry;

std::u16string changed(std::u16string_view text) {
  return testing::text_of(entry.CheckRealChange(text));
}

TEST(CheckRealChange, MovesTheMinusToTheFront) {
  EXPECT_EQ(changed(u"12-5"), u"-125");
  EXPECT_EQ(changed(u"125-"), u"-125");
  EXPECT_EQ(changed(u"-125"), u"-125");
}

TEST(CheckRealChange, MovesTheFirstMinusOnly) { EXPECT_EQ(changed(u"1-2-3"), u"-12-3"); }

TEST(CheckRealChange, TakesOneLeadingZero) {
  EXPECT_EQ(changed(u"007"), u"07");
  EXPECT_EQ(changed(u"-05"), u"-5");
  EXPECT_EQ(changed(u"0-05"), u"-05");
}

TEST(CheckRealChange, KeepsAZeroBeforeThePoint) {
  EXPECT_EQ(changed(u"0.5"), u"0.5");
  EXPECT_EQ(changed(u"-0.5"), u"-0.5");
}

TEST(CheckRealChange, KeepsZeroAlone) {
  EXPECT_EQ(changed(u"0"), u"0");
  EXPECT_EQ(changed(u"-0"), u"-0");
  EXPECT_EQ(changed(u"-"), u"-");
  EXPECT_EQ(changed(u""), u"");
}

TEST(CheckRealChange, TakesBlanksOnlyWhereAMinusStands) {
  EXPECT_EQ(changed(u" 05 "), u" 05 ");
  EXPECT_EQ(changed(u" 5-0 "), u"-50");
}

TEST(CheckRealChange, AgreesWithItsStepsOnAllShortTexts) {
  reference::for_all_texts(std::u16string_view(u"0-. 5"), 6, [](std::u16string_view text) {
    ASSERT_EQ(changed(text), reference::check_real_change(std::u16string(text)));
  });
}

// What stands in a text box after a key.
std::u16string stepped(std::u16string_view text, std::int16_t key, std::int16_t shift = 0) {
  testing::FakeControl box = testing::make_text_box(text);
  entry.IncreDecreInteger(box.object(), key, shift);
  EXPECT_EQ(box.references, 0u);
  return testing::text_of(box.value(u"Text").text());
}

constexpr std::int16_t kPageUp = 33;
constexpr std::int16_t kPageDown = 34;
constexpr std::int16_t kPlus = 107;
constexpr std::int16_t kMinus = 109;

TEST(IncreDecreInteger, StepsByTheKey) {
  EXPECT_EQ(stepped(u"5", kPageUp), u" 15");
  EXPECT_EQ(stepped(u"5", kPageDown), u" -5");
  EXPECT_EQ(stepped(u"5", kPlus), u" 6");
  EXPECT_EQ(stepped(u"5", kMinus), u" 4");
}

TEST(IncreDecreInteger, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(stepped(u"2.5", kPageUp), u" 12");
  EXPECT_EQ(stepped(u"3.5", kPageUp), u" 14");
}

TEST(IncreDecreInteger, ReadsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(stepped(u" 12 kg", kPlus), u" 13");
  EXPECT_EQ(stepped(u"kg", kPlus), u" 1");
}

TEST(IncreDecreInteger, OfAnEmptyTextGivesOne) {
  EXPECT_EQ(stepped(u"", kPageUp), u"1");
  EXPECT_EQ(stepped(u"", 65), u"1");
}

TEST(IncreDecreInteger, LeavesTheTextWithOtherKeys) {
  for (const std::int16_t key : std::initializer_list<std::int16_t>{0, 32, 35, 106, 108, 110, -33})
    EXPECT_EQ(stepped(u"5", key), u"5");
}

TEST(IncreDecreInteger, TakesNoNoticeOfShift) { EXPECT_EQ(stepped(u"5", kPlus, 1), u" 6"); }

TEST(IncreDecreInteger, WritesSinglePrecision) {
  EXPECT_EQ(stepped(u"16777217", kPlus), u" 1.677722E+07");
}

ErrorNumber error_of_step(std::u16string_view text, std::int16_t key) {
  return testing::error_of([&] { stepped(text, key); }).number;
}

TEST(IncreDecreInteger, OverflowsBeyond32Bits) {
  EXPECT_EQ(error_of_step(u"2147483647", kPlus), ErrorNumber::overflow);
  EXPECT_EQ(error_of_step(u"-2147483648", kMinus), ErrorNumber::overflow);
}

TEST(IncreDecreInteger, ConvertsBeforeItLooksAtTheKey) {
  EXPECT_EQ(error_of_step(u"2147483648", 65), ErrorNumber::overflow);
  EXPECT_EQ(error_of_step(u"1E999", 65), ErrorNumber::overflow);
}

TEST(IncreDecreInteger, LeavesOtherObjectsAlone) {
  testing::FakeControl label({u"Caption"});
  testing::FakeControl combo({u"Text", u"SelStart", u"SelLength", u"AddItem"});
  testing::FakeControl list({u"Text", u"SelStart", u"SelLength", u"List"});
  for (testing::FakeControl* control : {&label, &combo, &list}) {
    entry.IncreDecreInteger(control->object(), kPlus, 0);
    EXPECT_TRUE(control->log.empty());
  }
  entry.IncreDecreInteger(Object(), kPlus, 0);
}

}  // namespace
}  // namespace kw
