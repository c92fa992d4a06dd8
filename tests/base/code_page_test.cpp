#include "base/code_page.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

#include "base/case_map.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

std::string all_bytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  return bytes;
}

// Puts a page in use for one test.
class PageInUse {
 public:
  explicit PageInUse(const CodePage& page) : before_(code_page()) { set_code_page(page); }
  ~PageInUse() { set_code_page(before_); }
  PageInUse(const PageInUse&) = delete;
  PageInUse& operator=(const PageInUse&) = delete;

 private:
  const CodePage& before_;
};

// Bytes E0 to FF are Cyrillic small letters, C0 to DF their capitals; the rest is of no matter.
const CodePage& cyrillic_page() {
  static const CodePage page = [] {
    std::array<char16_t, 128> units{};
    for (unsigned i = 0; i < 128; ++i) {
      units[i] = static_cast<char16_t>(i < 64 ? 0x2500 + i : 0x0410 + (i - 64));
    }
    return CodePage(units);
  }();
  return page;
}

TEST(CodePage, AllBytesMapBothWays) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto own = static_cast<unsigned char>(byte);
    EXPECT_EQ(encode(decode(own)), own);
  }
}

TEST(CodePage, AsciiAndLatinLettersKeepTheirNumbers) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte >= 0x80 && byte < 0xA0) continue;
    EXPECT_EQ(decode(static_cast<unsigned char>(byte)), byte);
  }
}

TEST(CodePage, TheWindowsCharactersAreWhereTheyBelong) {
  EXPECT_EQ(widen("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
  EXPECT_EQ(widen("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"), u"‘’“”•–—˜™š›œžŸ");
}

TEST(CodePage, UndefinedBytesKeepTheirNumbers) {
  EXPECT_EQ(widen("\x81\x8D\x8F\x90\x9D"), u"\x81\x8D\x8F\x90\x9D");
  EXPECT_EQ(narrow(u"\x81\x8D\x8F\x90\x9D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(CodePage, NoOtherCharacterHasAByte) {
  const std::u16string page = widen(all_bytes());
  int encoded = 0;
  for (unsigned number = 0; number < 0x10000; ++number) {
    const auto unit = static_cast<char16_t>(number);
    const auto byte = encode(unit);
    ASSERT_EQ(byte.has_value(), page.find(unit) != std::u16string::npos) << number;
    if (byte) ++encoded;
  }
  EXPECT_EQ(encoded, 256);
}

TEST(CodePage, LowerCaseNeverLeavesThePage) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto own = static_cast<unsigned char>(byte);
    EXPECT_EQ(decode(lower_byte(own)), to_lower(decode(own)));
  }
}

TEST(CodePage, FoldedBytesAreTheCapitalsOfTheirCharacters) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto own = static_cast<unsigned char>(byte);
    EXPECT_EQ(fold_byte(own), to_upper(decode(own)));
  }
  EXPECT_EQ(fold_byte(0xB5), u'\u039C');
}

TEST(CodePage, WidensEveryByteAtEveryPlaceOfALongText) {
  const std::string filler(200, 'x');
  for (std::size_t at = 0; at < filler.size(); ++at) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string bytes = filler;
      bytes[at] = static_cast<char>(byte);
      std::u16string expected(filler.size(), u'x');
      expected[at] = decode(static_cast<unsigned char>(byte));
      ASSERT_EQ(widen(bytes), expected);
      ASSERT_EQ(narrow(expected), bytes);
    }
  }
}

TEST(CodePage, WideningAgreesWithSingleBytesOnRandomTexts) {
  const std::string alphabet = all_bytes();
  reference::for_random_inputs(
      3,
      [&](reference::Random& random) {
        const std::size_t first = reference::pick(random, 0, 255);
        const std::string bytes = reference::pick_text(
            random, std::string_view(alphabet).substr(first, reference::pick(random, 1, 64)), 300);
        std::u16string expected;
        for (const char byte : bytes) expected.push_back(decode(static_cast<unsigned char>(byte)));
        ASSERT_EQ(widen(bytes), expected);
        ASSERT_EQ(narrow(expected), bytes);
      },
      std::chrono::milliseconds(500));
}

TEST(CodePage, WidensIntoTheCallersBufferAndNotBeyond) {
  char16_t buffer[] = {u'?', u'?', u'?', u'?'};
  widen("a\x80z", buffer);
  EXPECT_EQ(std::u16string_view(buffer, 4), u"a€z?");
}

TEST(CodePage, CharactersThatThePageLacksAreWrittenAsQuestionMarks) {
  EXPECT_EQ(narrow(u"Łódź"),
            "?\xF3"
            "d?");
  EXPECT_EQ(narrow(u"\xD83D\xDE00"), "??");
}

TEST(CodePage, AppendsBehindWhatIsThere) {
  std::string out = "id ";
  narrow_append(u"'é'", out);
  EXPECT_EQ(out, "id '\xE9'");
}

TEST(CodePage, ASoughtTextThatThePageLacksIsRefusedWhereverItsCharacterStands) {
  std::string out = "before";
  EXPECT_TRUE(narrow_exact(u"é?€", out));
  EXPECT_EQ(out, "\xE9?\x80");
  for (std::size_t at = 0; at < 150; ++at) {
    std::u16string text(150, u'x');
    text[at] = u'Ł';
    EXPECT_FALSE(narrow_exact(text, out)) << at;
  }
  EXPECT_TRUE(narrow_exact(u"", out));
  EXPECT_EQ(out, "");
}

TEST(CodePage, AnotherPageCanBePutInUse) {
  const PageInUse use(cyrillic_page());
  EXPECT_EQ(widen("\xE0x\xC1"), u"аxБ");
  EXPECT_EQ(narrow(u"аxБé"), "\xE0x\xC1?");
  EXPECT_EQ(fold_byte(0xE0), u'А');
  EXPECT_EQ(lower_byte(0xC1), 0xE1);
  EXPECT_EQ(widen(std::string(64, '\xE0')), std::u16string(64, u'а'));
  EXPECT_EQ(narrow(widen(all_bytes())), all_bytes());
}

TEST(CodePage, ALetterWhoseSmallFormAPageLacksStaysInLowerCase) {
  std::array<char16_t, 128> units{};
  for (unsigned i = 0; i < 128; ++i) units[i] = static_cast<char16_t>(0x2500 + i);
  units[0] = u'Ж';
  EXPECT_EQ(CodePage(units).lower(0x80), 0x80);
}

TEST(CodePage, ACharacterThatStandsTwiceIsEncodedAsItsFirstByte) {
  std::array<char16_t, 128> units{};
  for (unsigned i = 0; i < 128; ++i) units[i] = static_cast<char16_t>(0x2500 + i / 2);
  const CodePage page(units);
  EXPECT_EQ(page.decode(0x83), u'\x2501');
  EXPECT_EQ(page.encode(u'\x2501'), 0x82);
}

}  // namespace
}  // namespace kw
