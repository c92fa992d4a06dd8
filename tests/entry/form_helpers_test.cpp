#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/numeric_text.h"
#include "entry/fake_control.h"
#include "kwutils/clsDataEdtUtils.h"
#include "kwutils/collection.h"
#include "kwutils/host.h"
#include "platform/screen.h"
#include "support/expect_error.h"

namespace kw {
namespace {

using testing::FakeControl;
using Log = std::vector<std::u16string>;

const clsDataEdtUtils entry;

TEST(FocusMe, SelectsTheWholeText) {
  FakeControl box = testing::make_text_box(u"pump");
  entry.FocusMe(box.object());
  EXPECT_EQ(box.log, (Log{u"set SelStart=0", u"set SelLength=4"}));
  EXPECT_EQ(box.references, 0u);
}

TEST(FocusMe, LeavesOtherObjectsAlone) {
  FakeControl label({u"Caption"});
  entry.FocusMe(label.object());
  EXPECT_TRUE(label.log.empty());
  entry.FocusMe(Object());
}

// A host with a screen.
struct Screen : ::testing::Test {
  Screen() {
    HostFunctions host;
    host.context = this;
    host.screen_size = [](void* context, float* w, float* h) KW_STDCALL {
      *w = static_cast<Screen*>(context)->width;
      *h = static_cast<Screen*>(context)->height;
    };
    set_host(host);
  }
  ~Screen() override { set_host(HostFunctions()); }

  float width = 15360;
  float height = 11520;
};

struct CheckRez : Screen {};
struct Dither : Screen {};

TEST_F(CheckRez, IsTrueForTheScreensOwnSize) { EXPECT_EQ(entry.CheckRez(1024, 768).bits(), -1); }

TEST_F(CheckRez, IsFalseForEveryOtherSize) {
  EXPECT_FALSE(entry.CheckRez(1024, 767));
  EXPECT_FALSE(entry.CheckRez(1023, 768));
  EXPECT_FALSE(entry.CheckRez(768, 1024));
  width = 15360.5f;
  EXPECT_FALSE(entry.CheckRez(1024, 768));
}

TEST_F(CheckRez, OverflowsBeyond32Bits) {
  EXPECT_FALSE(entry.CheckRez(143165576, -143165576));
  EXPECT_THROW(entry.CheckRez(143165577, 0), Error);
  EXPECT_THROW(entry.CheckRez(0, -143165577), Error);
}

TEST(CheckRezWithoutHost, AsksTheSystem) {
  constexpr float kTwipsPerPixel = 15;
  const platform::ScreenSize screen = platform::screen_size();
  EXPECT_TRUE(entry.CheckRez(to_int32(screen.width / kTwipsPerPixel),
                             to_int32(screen.height / kTwipsPerPixel)));
}

const std::vector<std::u16string> kFormNames = {
    u"WindowState", u"DrawStyle", u"DrawMode", u"ScaleMode", u"DrawWidth", u"ScaleHeight", u"Line"};

TEST_F(Dither, PreparesTheFormAndDraws256Bands) {
  FakeControl form(kFormNames);
  entry.Dither(form.object());
  ASSERT_EQ(form.log.size(), 5u + 256u);
  const Log beginning(form.log.begin(), form.log.begin() + 7);
  EXPECT_EQ(beginning, (Log{u"set DrawStyle=6", u"set DrawMode=13", u"set ScaleMode=3",
                            u"set DrawWidth=2", u"set ScaleHeight=256",
                            u"Line(22,0,0,15360,-1,16711680)", u"Line(22,0,1,15360,0,16646144)"}));
  EXPECT_EQ(form.log.back(), u"Line(22,0,255,15360,254,0)");
  EXPECT_EQ(form.references, 0u);
}

TEST_F(Dither, LeavesOtherObjectsAlone) {
  FakeControl picture({u"DrawStyle", u"DrawMode", u"ScaleMode", u"ScaleHeight", u"line"});
  entry.Dither(picture.object());
  EXPECT_TRUE(picture.log.empty());
  entry.Dither(Object());
}

struct OptionTrueIs : ::testing::Test {
  void add(FakeControl& control, Variant value, std::int16_t index) {
    control.set(u"Value", std::move(value));
    control.set(u"Index", Variant(index));
    group.add(Variant(control.object()));
  }
  std::int16_t set_index() { return entry.OptionTrueIs(Variant(group.object())); }

  const std::vector<std::u16string> names = {u"Value", u"Index"};
  FakeControl first{names}, second{names}, third{names};
  Collection group = Collection::create();
};

TEST_F(OptionTrueIs, IsTheIndexOfTheFirstThatIsSet) {
  add(first, Boolean(false), 1);
  add(second, Boolean(true), 3);
  add(third, Boolean(true), 5);
  EXPECT_EQ(set_index(), 3);
  EXPECT_TRUE(third.log.empty());
}

TEST_F(OptionTrueIs, IsZeroWhenNothingIsSet) {
  EXPECT_EQ(set_index(), 0);
  add(first, Boolean(false), 1);
  EXPECT_EQ(set_index(), 0);
}

TEST_F(OptionTrueIs, TakesMinusOneForTrueAndNoOtherNumber) {
  add(first, Variant(std::int32_t{1}), 1);
  add(second, Variant(std::int32_t{-1}), 2);
  EXPECT_EQ(set_index(), 2);
}

ErrorNumber error_for(const Variant& group) {
  return testing::error_of([&] { entry.OptionTrueIs(group); }).number;
}

TEST_F(OptionTrueIs, FailsForWhatIsNoGroup) {
  EXPECT_EQ(error_for(Variant(u"text")), ErrorNumber::type_mismatch);
  EXPECT_EQ(error_for(Variant(Object())), ErrorNumber::object_not_set);
  EXPECT_EQ(error_for(Variant(first.object())), ErrorNumber::no_such_member);
}

TEST_F(OptionTrueIs, FailsForAMemberWithoutValue) {
  FakeControl label({u"Caption"});
  group.add(Variant(label.object()));
  EXPECT_EQ(error_for(Variant(group.object())), ErrorNumber::no_such_member);
  group.reset();
}

}  // namespace
}  // namespace kw
