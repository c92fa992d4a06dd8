#include <cstring>
#include <string_view>
#include <thread>

#include "kwutils/automation.h"
#include "platform/automation_leaks.h"

namespace kw {
namespace {

class AutomationString : public test::LeakCheckedTest {};

std::u16string_view view(BSTR text) { return {text, SysStringLen(text)}; }

TEST_F(AutomationString, KeepsItsLengthInBytesBeforeTheText) {
  const BSTR text = SysAllocString(u"abc");
  std::uint32_t prefix = 0;
  std::memcpy(&prefix, reinterpret_cast<const char*>(text) - 4, 4);
  EXPECT_EQ(prefix, 6u);
  EXPECT_EQ(SysStringByteLen(text), 6u);
  EXPECT_EQ(SysStringLen(text), 3u);
  EXPECT_EQ(text[3], u'\0');
  SysFreeString(text);
}

TEST_F(AutomationString, OfNullIsNull) {
  EXPECT_EQ(SysAllocString(nullptr), nullptr);
  EXPECT_EQ(SysStringLen(nullptr), 0u);
  EXPECT_EQ(SysStringByteLen(nullptr), 0u);
  SysFreeString(nullptr);
}

TEST_F(AutomationString, OfALengthKeepsTerminatorsInside) {
  const BSTR text = SysAllocStringLen(u"a\0b", 3);
  EXPECT_EQ(view(text), std::u16string_view(u"a\0b", 3));
  SysFreeString(text);
}

TEST_F(AutomationString, OfALengthWithoutSourceIsTerminated) {
  const BSTR text = SysAllocStringLen(nullptr, 100);
  EXPECT_EQ(SysStringLen(text), 100u);
  EXPECT_EQ(text[100], u'\0');
  SysFreeString(text);
}

TEST_F(AutomationString, OfLengthZeroIsNotNull) {
  const BSTR text = SysAllocStringLen(u"", 0);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(SysStringLen(text), 0u);
  EXPECT_EQ(text[0], u'\0');
  SysFreeString(text);
}

TEST_F(AutomationString, OfAnOddNumberOfBytesIsTerminatedAfterThem) {
  const BSTR text = SysAllocStringByteLen("abc", 3);
  EXPECT_EQ(SysStringByteLen(text), 3u);
  EXPECT_EQ(SysStringLen(text), 1u);
  EXPECT_EQ(std::memcmp(text, "abc\0\0\0", 6), 0);
  SysFreeString(text);
}

TEST_F(AutomationString, TooLongForItsPrefixIsRefused) {
  EXPECT_EQ(SysAllocStringLen(nullptr, 0x7FFFFFFF), nullptr);
  EXPECT_EQ(SysAllocStringLen(nullptr, 0xFFFFFFFF), nullptr);
  EXPECT_EQ(SysAllocStringByteLen(nullptr, 0xFFFFFFFF), nullptr);
}

TEST_F(AutomationString, IsReplacedByItsOwnPart) {
  BSTR text = SysAllocString(u"abcdef");
  EXPECT_EQ(SysReAllocString(&text, text + 4), 1);
  EXPECT_EQ(view(text), u"ef");
  EXPECT_EQ(SysReAllocStringLen(&text, text + 1, 1), 1);
  EXPECT_EQ(view(text), u"f");
  SysFreeString(text);
}

TEST_F(AutomationString, IsReplacedByNothing) {
  BSTR text = SysAllocString(u"abc");
  EXPECT_EQ(SysReAllocString(&text, nullptr), 1);
  EXPECT_EQ(text, nullptr);
}

TEST_F(AutomationString, ResizedWithoutSourceKeepsItsText) {
  BSTR text = SysAllocString(u"abc");
  EXPECT_EQ(SysReAllocStringLen(&text, nullptr, 5), 1);
  EXPECT_EQ(view(text).substr(0, 3), u"abc");
  EXPECT_EQ(SysStringLen(text), 5u);
  EXPECT_EQ(text[5], u'\0');
  EXPECT_EQ(SysReAllocStringLen(&text, nullptr, 2), 1);
  EXPECT_EQ(view(text), u"ab");
  EXPECT_EQ(text[2], u'\0');
  SysFreeString(text);
}

TEST_F(AutomationString, ResizedFromNullIsMade) {
  BSTR text = nullptr;
  EXPECT_EQ(SysReAllocStringLen(&text, nullptr, 4), 1);
  EXPECT_EQ(SysStringLen(text), 4u);
  SysFreeString(text);
}

TEST_F(AutomationString, StaysWhenItCannotBeReplaced) {
  BSTR text = SysAllocString(u"abc");
  EXPECT_EQ(SysReAllocStringLen(&text, nullptr, 0x7FFFFFFF), 0);
  EXPECT_EQ(view(text), u"abc");
  EXPECT_EQ(SysReAllocString(nullptr, u"x"), 0);
  EXPECT_EQ(SysReAllocStringLen(nullptr, u"x", 1), 0);
  SysFreeString(text);
}

TEST(AutomationLiveCounts, ShowATextThatIsNotFreed) {
  const test::LiveCounts before;
  const BSTR text = SysAllocString(u"abc");
  EXPECT_EQ(test::LiveCounts().strings, before.strings + 1);
  SysFreeString(text);
  EXPECT_EQ(test::LiveCounts().strings, before.strings);
}

TEST(AutomationLiveCounts, ShowAnArrayThatIsNotDestroyed) {
  const test::LiveCounts before;
  SAFEARRAY* const array = SafeArrayCreateVector(kVtI4, 0, 1);
  EXPECT_EQ(test::LiveCounts().arrays, before.arrays + 1);
  SafeArrayDestroy(array);
  EXPECT_EQ(test::LiveCounts().arrays, before.arrays);
}

TEST(AutomationLiveCounts, AddUpOverThreadsThatHaveEnded) {
  const test::LiveCounts before;
  BSTR text = nullptr;
  std::thread([&text] { text = SysAllocString(u"made elsewhere"); }).join();
  EXPECT_EQ(test::LiveCounts().strings, before.strings + 1);
  std::thread([text] { SysFreeString(text); }).join();
  EXPECT_EQ(test::LiveCounts().strings, before.strings);
}

TEST(AutomationLiveCounts, AddUpOverThreadsThatRun) {
  const test::LiveCounts before;
  constexpr int kTexts = 10000;
  const auto work = [] {
    for (int i = 0; i < kTexts; ++i) SysFreeString(SysAllocString(u"x"));
  };
  std::thread first(work);
  std::thread second(work);
  work();
  first.join();
  second.join();
  EXPECT_EQ(test::LiveCounts().strings, before.strings);
}

TEST(AutomationLiveCounts, AcceptNull) {
  KwAutomationLiveCounts(nullptr, nullptr);
  std::int64_t arrays = -1;
  KwAutomationLiveCounts(nullptr, &arrays);
  EXPECT_GE(arrays, 0);
}

}  // namespace
}  // namespace kw
