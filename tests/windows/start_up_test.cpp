#include "platform/windows/start_up.h"

#include <gtest/gtest.h>

#include "base/code_page.h"
#include "base/numeric_text.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

TEST(StartUp, TakesSingleBytePagesFromTheSystem) {
  const auto western = upper_half(1252);
  ASSERT_TRUE(western);
  EXPECT_EQ((*western)[0x00], u'\u20AC');
  EXPECT_EQ((*western)[0x01], u'\u0081');
  EXPECT_EQ((*western)[0x7F], u'\u00FF');
  const auto cyrillic = upper_half(1251);
  ASSERT_TRUE(cyrillic);
  EXPECT_EQ((*cyrillic)[0x40], u'\u0410');
}

TEST(StartUp, LeavesPagesOfSeveralBytesAlone) {
  EXPECT_FALSE(upper_half(932));
  EXPECT_FALSE(upper_half(CP_UTF8));
  EXPECT_FALSE(upper_half(99999));
}

TEST(StartUp, PutsTheSystemsPageInUse) {
  const auto own = upper_half(GetACP());
  const auto expected = own ? (*own)[0x69] : code_page_1252().decode(0xE9);
  EXPECT_EQ(code_page().decode(0xE9), expected);
}

TEST(StartUp, ReadsNumbersWithTheSystemsSeparator) {
  char16_t separator[4] = {};
  ASSERT_EQ(GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, wide(separator), 4), 2);
  EXPECT_EQ(parse_number(std::u16string(u"1") + separator[0] + u"5"), 1.5);
}

}  // namespace
}  // namespace kw::platform
