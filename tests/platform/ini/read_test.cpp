// What an INI file says: lines, headers, entries, the first match.
#include <gtest/gtest.h>

#include <string>

#include "platform/ini/entry_search.h"

namespace kw::ini {
namespace {

using namespace std::string_literals;

constexpr const char* kNoEntry = "(no entry)";
constexpr const char* kNoValue = "(no value)";

std::string value_of(std::string_view content, std::string_view section, std::string_view key) {
  EntrySearch<char> search(trim(section), trim(key), Sections::first);
  search.scan(content, true);
  if (!search.entry()) return kNoEntry;
  return search.entry()->has_value ? std::string(search.entry()->value) : kNoValue;
}

// The value of k in section s.
std::string value(std::string_view content) { return value_of(content, "s", "k"); }

TEST(IniRead, GivesTheValueOfTheKeyInTheSection) {
  EXPECT_EQ(value_of("[a]\r\nk=1\r\n[b]\r\nj=2\r\nk=3\r\n", "b", "k"), "3");
}

TEST(IniRead, FindsNothingInAnEmptyFile) { EXPECT_EQ(value(""), kNoEntry); }

TEST(IniRead, FindsNothingInAnotherSection) { EXPECT_EQ(value("[t]\r\nk=1\r\n"), kNoEntry); }

TEST(IniRead, CarriageReturnsAndLineFeedsEndLines) {
  for (const char* end : {"\r", "\n", "\r\n", "\n\r"}) {
    const std::string content = "[s]"s + end + "j=0" + end + "k=v" + end + "l=w" + end;
    EXPECT_EQ(value(content), "v") << content;
  }
}

TEST(IniRead, LastLineNeedsNoEnd) { EXPECT_EQ(value("[s]\r\nk=v"), "v"); }

TEST(IniRead, DropsBlanksAroundEverything) {
  for (const char* blank : {"\x09", "\x0B", "\x0C", " ", "\x1A", " \t\x1A "}) {
    const std::string b = blank;
    const std::string header = b + "[" + b + "s" + b + "]" + b + "\r\n";
    EXPECT_EQ(value(header + b + "k" + b + "=" + b + "v" + b + "\r\n"), "v");
  }
}

TEST(IniRead, NoBreakSpaceIsNotBlank) {
  EXPECT_EQ(value("[s]\r\nk=\xA0v\xA0\r\n"), "\xA0v\xA0");
  EXPECT_EQ(value("[s]\r\n\xA0k=v\r\n"), kNoEntry);
}

TEST(IniRead, TextAfterAHeaderIsIgnored) {
  for (const char* header : {"[s]x", "[s];c", "[s]k=w", "[s] "}) {
    EXPECT_EQ(value(std::string(header) + "\r\nk=v\r\n"), "v") << header;
  }
}

TEST(IniRead, HeaderReachesToTheLastClosingBracket) {
  EXPECT_EQ(value_of("[a]b]\r\nk=v\r\n", "a]b", "k"), "v");
  EXPECT_EQ(value_of("[s]]\r\nk=v\r\n", "s]", "k"), "v");
  EXPECT_EQ(value_of("[[s]\r\nk=v\r\n", "[s", "k"), "v");
}

TEST(IniRead, LineWithoutClosingBracketIsNoHeader) {
  EXPECT_EQ(value_of("[s]\r\n[t\r\nk=v\r\n", "s", "k"), "v");
  EXPECT_EQ(value_of("[a]\r\n[s=q\r\n", "a", "[s"), "q");
  EXPECT_EQ(value_of("[a]\r\n[s\r\nk=v\r\n", "s", "k"), kNoEntry);
}

TEST(IniRead, LinesBeforeAnyHeaderAreTheEmptySection) {
  EXPECT_EQ(value_of("k=v\r\n[s]\r\nk=w\r\n", "", "k"), "v");
  EXPECT_EQ(value_of("k=v\r\n", "  ", "k"), "v");
}

TEST(IniRead, LeadingLinesHideALaterEmptyHeader) {
  EXPECT_EQ(value_of("[]\r\nk=v\r\n", "", "k"), kNoEntry);
  EXPECT_EQ(value_of("[ ]\r\nk=v\r\n", "", "k"), kNoEntry);
}

TEST(IniRead, ValueIsEverythingAfterTheFirstEqualsSign) {
  EXPECT_EQ(value("[s]\r\nk=a=b\r\n"), "a=b");
  EXPECT_EQ(value("[s]\r\nk==\r\n"), "=");
  EXPECT_EQ(value_of("[s]\r\nk=a=b\r\n", "s", "k=a"), kNoEntry);
}

TEST(IniRead, LineWithoutEqualsSignIsAnEntryWithoutValue) {
  EXPECT_EQ(value("[s]\r\nk\r\n"), kNoValue);
  EXPECT_EQ(value("[s]\r\n k \r\nk=v\r\n"), kNoValue);
}

TEST(IniRead, EmptyValueIsAValue) {
  EXPECT_EQ(value("[s]\r\nk=\r\n"), "");
  EXPECT_EQ(value("[s]\r\nk= \t \r\n"), "");
  EXPECT_EQ(value("[s]\r\nk="), "");
}

TEST(IniRead, BlanksAroundTheNamesSoughtDoNotCount) {
  EXPECT_EQ(value_of("[s]\r\nk=v\r\n", " s\t", "\t k "), "v");
  EXPECT_EQ(value_of("[s]\r\nk=v\r\n", "\r\ns", "k\r\n"), "v");
}

TEST(IniRead, CaseDoesNotMatterInNames) {
  EXPECT_EQ(value_of("[Sec]\r\nKey=v\r\n", "sEC", "kEY"), "v");
  EXPECT_EQ(value_of("[\xC9]\r\n\xE9\xE0=v\r\n", "\xE9", "\xC9\xC0"), "v");
  EXPECT_EQ(value_of("[s]\r\n\x9F=v\r\n", "s", "\xFF"), "v");
}

TEST(IniRead, LongerAndShorterNamesAreOthers) {
  const char* content = "[ss]\r\nk=0\r\n[s]\r\nkk=1\r\nk k=2\r\nk=3\r\n";
  EXPECT_EQ(value(content), "3");
  EXPECT_EQ(value_of(content, "s", "kk"), "1");
  EXPECT_EQ(value_of(content, "s", "k k"), "2");
}

TEST(IniRead, FirstOfEqualKeysWins) { EXPECT_EQ(value("[s]\r\nK=1\r\nk=2\r\n"), "1"); }

TEST(IniRead, OnlyTheFirstOfEqualSectionsIsSearched) {
  EXPECT_EQ(value("[s]\r\nj=1\r\n[t]\r\n[s]\r\nk=2\r\n"), kNoEntry);
  EXPECT_EQ(value("[s]\r\nj=1\r\n[S]\r\nk=2\r\n"), kNoEntry);
}

TEST(IniRead, SemicolonBeginsAComment) {
  EXPECT_EQ(value("[s]\r\n;k=1\r\n ;k=2\r\nk=3\r\n"), "3");
  EXPECT_EQ(value_of("[s]\r\n;k=1\r\n", "s", ";k"), kNoEntry);
  EXPECT_EQ(value(";[s]\r\nk=1\r\n"), kNoEntry);
}

TEST(IniRead, NumberSignBeginsAnOrdinaryKey) {
  EXPECT_EQ(value_of("[s]\r\n#k=1\r\n", "s", "#k"), "1");
}

TEST(IniRead, NoCommentFollowsAValue) { EXPECT_EQ(value("[s]\r\nk=a ;c\r\n"), "a ;c"); }

TEST(IniRead, EmptyKeyNamesALineThatBeginsWithEquals) {
  EXPECT_EQ(value_of("[s]\r\n\r\n =v\r\n", "s", ""), "v");
}

TEST(IniRead, NulEndsNamesAndValues) {
  EXPECT_EQ(value("[s\0x]\r\nk\0y=v\0z\r\n"s), "v");
  EXPECT_EQ(value_of("[s]\r\n\0k=v\r\n"s, "s", ""), "v");
}

TEST(IniRead, EveryOtherByteIsKept) {
  std::string bytes;
  for (int byte = 0x21; byte <= 0xFF; ++byte) bytes += static_cast<char>(byte);
  bytes = "\x01\x02 \x1B" + bytes;
  EXPECT_EQ(value("[s]\r\nk=" + bytes + "\r\n"), bytes);
}

TEST(IniRead, ByteOrderMarkOfUtf8SpoilsTheFirstLine) {
  EXPECT_EQ(value("\xEF\xBB\xBF[s]\r\nk=v\r\n"), kNoEntry);
  EXPECT_EQ(value("\xEF\xBB\xBF;c\r\n[s]\r\nk=v\r\n"), "v");
}

TEST(IniRead, LongValuesAreWhole) {
  const std::string longest(70000, 'x');
  EXPECT_EQ(value("[s]\r\nk=" + longest + "\r\n"), longest);
}

TEST(IniRead, AFileMayComeInPieces) {
  const std::string content = "[a]\r\nk=1\r\n[s]\r\nj=2\r\nk=3";
  EntrySearch<char> search("s", "k", Sections::first);
  std::string window;
  for (const char byte : content) {
    window += byte;
    window.erase(0, search.scan(window, false));
    EXPECT_FALSE(search.finished());
  }
  search.scan(window, true);
  ASSERT_TRUE(search.entry());
  EXPECT_EQ(search.entry()->value, "3");
}

TEST(IniRead, Utf16IsReadInTheSameWay) {
  EntrySearch<char16_t> search(u"S\u0394", u"\u0436", Sections::first);
  search.scan(u"[t]\r\n\u0416=1\r\n [s\u03B4]\r\n ;\u0436=2\r\n\u0416 = \u20AC \r\n", true);
  ASSERT_TRUE(search.entry());
  EXPECT_EQ(search.entry()->value, u"\u20AC");
}

}  // namespace
}  // namespace kw::ini
