// The library's message boxes, in a program with windows and without, with a screen and without.
#include <gtest/gtest.h>

#include "desktop/box_watch.h"
#include "desktop/host_window.h"
#include "kwutils/variant.h"
#include "support/texts.h"
#include "windows/built_library.h"

namespace kw::testing {
namespace {

// Names a drive that is not there, which the library asks the user about.
std::u16string make_absolute_on_a_missing_drive() {
  const Variant path(u"Q:x.txt");
  return text_of(built_object("clsFileUtil").call(u"MakeAbsolute", {&path}).text());
}

// Asks for a key that is not there, which the library tells the user before it goes on.
std::u16string read_a_missing_key() {
  const Variant section(u"s"), key(u"k"), type(u"string"), file(u".");
  const Variant value =
      built_object("clsIni").call(u"GetIniAndCheck", {&section, &key, &type, &file});
  return text_of(value.text());
}

TEST(BoxOnAScreen, IsModalToTheActiveWindow) {
  const HostWindow host(u"Pumps");
  BoxWatch watch({IDABORT});
  make_absolute_on_a_missing_drive();
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_EQ(watch.seen()[0].owner, host.get());
  EXPECT_FALSE(watch.seen()[0].owner_takes_input);
  EXPECT_TRUE(IsWindowEnabled(host.get()));
}

TEST(BoxOnAScreen, BearsTheCaptionOfTheActiveWindow) {
  const HostWindow host(u"Pumps \u00E4");
  BoxWatch watch({IDABORT});
  make_absolute_on_a_missing_drive();
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_EQ(watch.seen()[0].caption, u"Pumps \u00E4");
}

TEST(BoxOnAScreen, BearsTheProgramsNameWhereTheWindowHasNoCaption) {
  const HostWindow host(u"");
  BoxWatch watch({IDABORT});
  make_absolute_on_a_missing_drive();
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_EQ(watch.seen()[0].caption, u"test_windows_desktop");
}

TEST(BoxOnAScreen, BearsTheProgramsNameWhereThereIsNoWindow) {
  BoxWatch watch({IDABORT});
  make_absolute_on_a_missing_drive();
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_EQ(watch.seen()[0].caption, u"test_windows_desktop");
}

TEST(BoxOnAScreen, SaysWhatFailed) {
  BoxWatch watch({IDABORT});
  make_absolute_on_a_missing_drive();
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_TRUE(watch.seen()[0].text.starts_with(u"Error in MakeAbsolute:"));
}

TEST(BoxOnAScreen, AbortEndsTheMethod) {
  BoxWatch watch({IDABORT});
  EXPECT_EQ(make_absolute_on_a_missing_drive(), u"");
}

TEST(BoxOnAScreen, RetryPerformsTheStepAgain) {
  BoxWatch watch({IDRETRY, IDRETRY, IDABORT});
  EXPECT_EQ(make_absolute_on_a_missing_drive(), u"");
  EXPECT_EQ(watch.seen().size(), 3u);
}

TEST(BoxOnAScreen, IgnoreGoesOn) {
  BoxWatch watch({IDIGNORE});
  EXPECT_TRUE(make_absolute_on_a_missing_drive().ends_with(u"\\x.txt"));
}

TEST(BoxOnAScreen, TellsAndGoesOn) {
  const HostWindow host(u"Pumps");
  BoxWatch watch({IDOK});
  EXPECT_EQ(read_a_missing_key(), u"__NO_VALUE__");
  ASSERT_EQ(watch.seen().size(), 1u);
  EXPECT_EQ(watch.seen()[0].caption, u"Pumps");
  EXPECT_EQ(watch.seen()[0].text, u"Missing [s/k] in ini file '.'");
}

TEST(BoxWithoutAScreen, CountsAsAbort) { EXPECT_EQ(make_absolute_on_a_missing_drive(), u""); }

TEST(BoxWithoutAScreen, KeepsNobodyWaiting) { EXPECT_EQ(read_a_missing_key(), u"__NO_VALUE__"); }

}  // namespace
}  // namespace kw::testing
