#include "config/fake_form.h"
#include "config/ini_test.h"
#include "support/expect_error.h"

namespace kw {
namespace {

class WindowPlacement : public testing::IniTest {
 protected:
  WindowPlacement() {
    set_edges(1440, 720, 7200, 5400);
    set_state(0);
  }
  ~WindowPlacement() override { EXPECT_EQ(form_.references, 0u); }

  void set_edges(float left, float top, float width, float height) {
    form_.set(u"Left", Variant(left));
    form_.set(u"Top", Variant(top));
    form_.set(u"Width", Variant(width));
    form_.set(u"Height", Variant(height));
  }
  void set_state(std::int16_t state) { form_.set(u"WindowState", Variant(state)); }

  testing::FakeForm form_;
};

TEST_F(WindowPlacement, IsKeptInPerCentOfTheScreen) {
  ini_.WritePrivateWindowinIni(form_.variable(), u"main", u"app.ini");
  EXPECT_EQ(folder_.read("app.ini"),
            "[main]\r\nLeft=10\r\nTop=6.666667\r\nWidth=50\r\nHeight=50\r\nState=0\r\n");
}

TEST_F(WindowPlacement, ReadsThePropertiesInOrderAndTheStateTwice) {
  ini_.WritePrivateWindowinIni(form_.variable(), u"main", u"app.ini");
  EXPECT_EQ(form_.reads, (std::vector<std::u16string>{u"WindowState", u"Left", u"Top", u"Width",
                                                      u"Height", u"WindowState"}));
}

TEST_F(WindowPlacement, OfAMinimisedFormIsNotKept) {
  set_state(1);
  ini_.WriteWindowInIni(form_.variable(), u"app.ini");
  EXPECT_TRUE(folder_.list().empty());
  EXPECT_EQ(form_.reads, std::vector<std::u16string>{u"WindowState"});
}

TEST_F(WindowPlacement, OfAMaximisedFormFillsTheScreen) {
  set_state(2);
  screen_width_ = screen_height_ = 0;
  ini_.WritePrivateWindowinIni(form_.variable(), u"main", u"app.ini");
  EXPECT_EQ(folder_.read("app.ini"),
            "[main]\r\nLeft=0\r\nTop=0\r\nWidth=100\r\nHeight=100\r\nState=0\r\n");
  EXPECT_EQ(form_.reads, std::vector<std::u16string>{u"WindowState"});
}

TEST_F(WindowPlacement, OfAnyOtherStateIsNotKept) {
  set_state(3);
  ini_.WriteWindowInIni(form_.variable(), u"app.ini");
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(WindowPlacement, StandsInTheSectionWindowUnlessToldOtherwise) {
  set_state(2);
  ini_.WriteWindowInIni(form_.variable(), u"app.ini");
  EXPECT_EQ(ini_.GetIni(u"window", u"Width", u"", u"app.ini").view(), u"100");
}

TEST_F(WindowPlacement, HasAtMostSevenDigits) {
  screen_width_ = 300;
  screen_height_ = 1e9f;
  set_edges(100, 1, -1.5f, 0);
  ini_.WriteWindowInIni(form_.variable(), u"app.ini");
  EXPECT_EQ(folder_.read("app.ini"),
            "[window]\r\nLeft=33.33333\r\nTop=1E-07\r\nWidth=-0.5\r\nHeight=0\r\nState=0\r\n");
}

TEST_F(WindowPlacement, OnAScreenWithoutSizeIsADivisionByZero) {
  screen_height_ = 0;
  EXPECT_EQ(testing::number_of([&] { ini_.WriteWindowInIni(form_.variable(), u"app.ini"); }), 11);
  EXPECT_EQ(folder_.read("app.ini"), "[window]\r\nLeft=10\r\n");
}

TEST_F(WindowPlacement, BeyondSinglePrecisionOverflows) {
  set_edges(3e38f, 0, 0, 0);
  EXPECT_EQ(testing::number_of([&] { ini_.WriteWindowInIni(form_.variable(), u"app.ini"); }), 6);
}

TEST_F(WindowPlacement, OfAFormWithoutAPropertyFailsAndKeepsWhatWasWritten) {
  testing::FakeForm bare;
  bare.set(u"WindowState", Variant(std::int16_t{0}));
  bare.set(u"Left", Variant(1440.0f));
  EXPECT_EQ(testing::number_of([&] { ini_.WriteWindowInIni(bare.variable(), u"app.ini"); }), 438);
  EXPECT_EQ(folder_.read("app.ini"), "[window]\r\nLeft=10\r\n");
}

TEST_F(WindowPlacement, NeedsAnObject) {
  EXPECT_EQ(testing::number_of([&] { ini_.WriteWindowInIni(u"form", u"app.ini"); }), 13);
  EXPECT_EQ(testing::number_of([&] { ini_.WriteWindowInIni(Variant(Object()), u"app.ini"); }), 91);
}

TEST_F(WindowPlacement, FailuresToWriteAreNotReported) {
  ini_.WriteWindowInIni(form_.variable(), u"none\\app.ini");
  EXPECT_EQ(form_.reads.size(), 6u);
}

}  // namespace
}  // namespace kw
