#include "kwutils/string.h"

#include <gtest/gtest.h>

namespace kw {
namespace {

TEST(String, AbsentTextEqualsEmpty) {
  const String absent;
  EXPECT_EQ(absent.get(), nullptr);
  EXPECT_TRUE(absent.empty());
  EXPECT_EQ(absent.view(), u"");
}

TEST(String, HoldsAnyCodeUnit) {
  const String text(std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(text.size(), 3u);
  EXPECT_EQ(text.view(), std::u16string_view(u"a\0b", 3));
}

TEST(String, ConcatJoinsItsPartsInOneText) {
  const String left = u"id ";
  EXPECT_EQ(String::concat(left, u"'7'", std::u16string_view()).view(), u"id '7'");
}

TEST(String, MovingLeavesEmptyText) {
  String from = u"pump";
  const String to = std::move(from);
  EXPECT_EQ(to.view(), u"pump");
}

TEST(String, Utf8RoundTrips) {
  EXPECT_EQ(String::from_utf8("caf\xC3\xA9").view(), u"caf\u00E9");
  EXPECT_EQ(String(u"caf\u00E9").utf8(), "caf\xC3\xA9");
}

TEST(String, CanTakeItsOwnTail) {
  String text = u"abcdef";
  text = text.view().substr(2);
  EXPECT_EQ(text.view(), u"cdef");
}

}  // namespace
}  // namespace kw
