#include "files/file_name.h"

#include <gtest/gtest.h>

#include <string>

#include "kwutils/clsFileUtil.h"
#include "support/texts.h"

namespace kw {
namespace {

using testing::text_of;

const clsFileUtil util;

TEST(FindLastOccurrence, IsWhereTheLastOneEnds) {
  EXPECT_EQ(files::FindLastOccurrence(u"a\\b\\c", u"\\"), 4);
  EXPECT_EQ(files::FindLastOccurrence(u"abcabc", u"bc"), 6);
  EXPECT_EQ(files::FindLastOccurrence(u"abc", u"x"), -1);
  EXPECT_EQ(files::FindLastOccurrence(u"", u"x"), -1);
}

TEST(ReverseText, TurnsTheTextAround) {
  EXPECT_EQ(files::ReverseText(u"abc"), u"cba");
  EXPECT_EQ(files::ReverseText(u""), u"");
}

struct Parts {
  std::u16string path, name, ext;
  bool operator==(const Parts&) const = default;
};

Parts split(std::u16string_view file_name) {
  String path = u"old", name = u"old", ext = u"old";
  util.SplitFileName(file_name, path, name, ext);
  return {text_of(path), text_of(name), text_of(ext)};
}

TEST(SplitFileName, CutsAtTheLastBackslashAndTheFirstDotBehindIt) {
  EXPECT_EQ(split(u"C:\\a\\b.tar.gz"), (Parts{u"C:\\a\\", u"b", u"tar.gz"}));
  EXPECT_EQ(split(u"C:\\dir.old\\file"), (Parts{u"C:\\dir.old\\", u"file", u""}));
  EXPECT_EQ(split(u".profile"), (Parts{u"", u"", u"profile"}));
}

TEST(SplitFileName, ClearsWhatIsNotThere) {
  EXPECT_EQ(split(u"readme"), (Parts{u"", u"readme", u""}));
  EXPECT_EQ(split(u"C:\\a\\"), (Parts{u"C:\\a\\", u"", u""}));
  EXPECT_EQ(split(u"name."), (Parts{u"", u"name", u""}));
  EXPECT_EQ(split(u""), (Parts{u"", u"", u""}));
}

TEST(SplitFileName, KnowsBackslashesOnly) {
  EXPECT_EQ(split(u"a/b.c"), (Parts{u"", u"a/b", u"c"}));
}

TEST(SplitFileName, MayStoreAPartInTheNameItself) {
  String text = u"C:\\a\\b.txt", name, ext;
  util.SplitFileName(text, text, name, ext);
  EXPECT_EQ(text_of(text), u"C:\\a\\");
  EXPECT_EQ(text_of(name), u"b");
  EXPECT_EQ(text_of(ext), u"txt");
}

std::u16string folder(std::u16string_view file) {
  String variable(file);
  const Variant result = util.StripFileFrom(variable);
  EXPECT_TRUE(result.is_text());
  return text_of(result.text());
}

TEST(StripFileFrom, GivesTheFolderWithoutItsLastBackslash) {
  EXPECT_EQ(folder(u"C:\\a\\b.txt"), u"C:\\a");
  EXPECT_EQ(folder(u"C:\\a\\"), u"C:\\a");
  EXPECT_EQ(folder(u"C:\\a \\b"), u"C:\\a");
}

TEST(StripFileFrom, LeavesTheCallersVariableTrimmed) {
  String variable = u"  C:\\a\\b.txt ";
  EXPECT_EQ(text_of(util.StripFileFrom(variable).text()), u"C:\\a");
  EXPECT_EQ(text_of(variable), u"C:\\a\\b.txt");
}

TEST(StripFileFrom, KeepsTheBackslashOfARoot) {
  EXPECT_EQ(folder(u"C:\\b.txt"), u"C:\\");
  EXPECT_EQ(folder(u"\\b.txt"), u"\\");
  EXPECT_EQ(folder(u"ab\\c"), u"ab\\");
}

TEST(StripFileFrom, GivesNothingForANameWithoutBackslash) {
  EXPECT_EQ(folder(u"b.txt"), u"");
  EXPECT_EQ(folder(u""), u"");
}

TEST(StripFileFrom, TakesASecondPositionAsAnyOther) { EXPECT_EQ(folder(u"a\\b"), u"a"); }

std::u16string file(const Variant& name) { return text_of(util.StripPathFrom(name)); }

TEST(StripPathFrom, GivesWhatFollowsTheLastBackslash) {
  EXPECT_EQ(file(u"C:\\a\\b.txt"), u"b.txt");
  EXPECT_EQ(file(u"C:\\a\\"), u"");
  EXPECT_EQ(file(u"C:\\a\\ b c "), u"b c");
}

TEST(StripPathFrom, GivesANameWithoutBackslashWhole) {
  EXPECT_EQ(file(u" b.txt "), u"b.txt");
  EXPECT_EQ(file(u""), u"");
}

TEST(StripPathFrom, ReadsAnyValueAsText) {
  EXPECT_EQ(file(Variant(std::int16_t{12})), u"12");
  EXPECT_EQ(file(Variant()), u"");
}

TEST(StripPathFrom, GivesNothingForWhatHasNoText) {
  EXPECT_EQ(file(Variant::missing()), u"");
  EXPECT_EQ(file(Variant(Object())), u"");
}

TEST(StripPathFrom, GivesNothingForANameWhoseLengthDoesNotFit16Bits) {
  EXPECT_EQ(file(String(std::u16string(32767, u'a'))).size(), 32767u);
  EXPECT_EQ(file(String(std::u16string(32768, u'a'))), u"");
}

TEST(FileOpener, AnswersNoFile) {
  for (const std::int32_t mode : {-1, 1, 2, 3, 4, 5, 99}) {
    EXPECT_EQ(util.FileOpener(u"C:\\a\\b.txt", mode), NO_FILE);
  }
  EXPECT_EQ(NO_FILE, -1);
}

}  // namespace
}  // namespace kw
