// What a change does to the text of an INI file.
#include "platform/ini/edit.h"

#include <gtest/gtest.h>

#include <string>

namespace kw::ini {
namespace {

template <class C>
std::basic_string<C> applied(View<C> content, const std::optional<Edit<C>>& edit) {
  std::basic_string<C> result(content);
  if (edit) result.replace(edit->begin, edit->end - edit->begin, edit->text);
  return result;
}

std::string set(std::string_view content, std::string_view section, std::string_view key,
                std::string_view value) {
  return applied<char>(content, set_entry<char>(content, section, key, value));
}

std::string removed(std::string_view content, std::string_view section, std::string_view key) {
  return applied<char>(content, remove_entry<char>(content, section, key));
}

TEST(IniSet, MakesSectionAndEntryInAnEmptyFile) {
  EXPECT_EQ(set("", "s", "k", "v"), "[s]\r\nk=v\r\n");
}

TEST(IniSet, ReplacesTheValueInPlaceInTheSpellingOfTheFile) {
  EXPECT_EQ(set("[S]\r\na=1\r\nKey=2\r\nb=3\r\n", "s", "kEY", "9"),
            "[S]\r\na=1\r\nKey=9\r\nb=3\r\n");
}

TEST(IniSet, HasNothingToDoForTheSameValue) {
  EXPECT_FALSE(set_entry<char>("[s]\n k = v \n", "s", "k", "v"));
  EXPECT_FALSE(set_entry<char>("[s]\nk=v", "s", "k", "  v"));
}

TEST(IniSet, WritesAValueWithBlanksAtItsEnd) {
  EXPECT_EQ(set("[s]\r\nk=v\r\n", "s", "k", "v "), "[s]\r\nk=v \r\n");
}

TEST(IniSet, NewEntryFollowsTheLastLineOfTheSection) {
  EXPECT_EQ(set("[s]\r\na=1\r\n;c\r\n[t]\r\nb=2\r\n", "s", "k", "v"),
            "[s]\r\na=1\r\n;c\r\nk=v\r\n[t]\r\nb=2\r\n");
  EXPECT_EQ(set("[s]\r\n[t]\r\n", "s", "k", "v"), "[s]\r\nk=v\r\n[t]\r\n");
}

TEST(IniSet, BlankLinesBetweenSectionsStayThere) {
  EXPECT_EQ(set("[s]\r\na=1 \r\n\r\n \r\n[t]\r\n", "s", "k", "v"),
            "[s]\r\na=1 \r\nk=v\r\n\r\n \r\n[t]\r\n");
  EXPECT_EQ(set("[s]\r\n\r\n[t]\r\n", "s", "k", "v"), "[s]\r\nk=v\r\n\r\n[t]\r\n");
}

TEST(IniSet, NewSectionComesLast) {
  EXPECT_EQ(set("[t]\r\nb=2\r\n", "s", "k", "v"), "[t]\r\nb=2\r\n[s]\r\nk=v\r\n");
}

TEST(IniSet, EndsALastLineThatHasNoEnd) {
  EXPECT_EQ(set("[t]\r\nb=2", "s", "k", "v"), "[t]\r\nb=2\r\n[s]\r\nk=v\r\n");
  EXPECT_EQ(set("[s]\r\nb=2", "s", "k", "v"), "[s]\r\nb=2\r\nk=v\r\n");
  EXPECT_EQ(set("[s]", "s", "k", "v"), "[s]\r\nk=v\r\n");
  EXPECT_EQ(set("[s]\r\nk=1", "s", "k", "v"), "[s]\r\nk=v\r\n");
}

TEST(IniSet, OnlyTheFirstOfEqualSectionsIsChanged) {
  EXPECT_EQ(set("[s]\r\n[t]\r\n[s]\r\nk=1\r\n", "s", "k", "v"),
            "[s]\r\nk=v\r\n[t]\r\n[s]\r\nk=1\r\n");
}

TEST(IniSet, EmptySectionIsWrittenAtTheTopWithoutHeader) {
  EXPECT_EQ(set("[s]\r\nk=1\r\n", "", "k", "v"), "k=v\r\n[s]\r\nk=1\r\n");
  EXPECT_EQ(set("", "", "k", "v"), "k=v\r\n");
  EXPECT_EQ(set("a=1\r\n[s]\r\n", "", "k", "v"), "a=1\r\nk=v\r\n[s]\r\n");
}

TEST(IniSet, EmptyKeyIsWritten) { EXPECT_EQ(set("", "s", "", "v"), "[s]\r\n=v\r\n"); }

TEST(IniSet, EmptyValueIsWritten) {
  EXPECT_EQ(set("[s]\r\nk=1\r\n", "s", "k", ""), "[s]\r\nk=\r\n");
}

TEST(IniSet, GivesAValueToAnEntryThatHasNone) {
  EXPECT_EQ(set("[s]\r\nk\r\n", "s", "k", "v"), "[s]\r\nk=v\r\n");
  EXPECT_EQ(set("[s]\r\nk\r\n", "s", "k", ""), "[s]\r\nk=\r\n");
}

TEST(IniSet, DropsBlanksBeforeTheTextsAndKeepsThoseAfter) {
  EXPECT_EQ(set("", " \ts ", "\t k ", " v\t"), "[s ]\r\nk =v\t\r\n");
}

TEST(IniSet, WritesQuotesAndEverythingElseAsGiven) {
  EXPECT_EQ(set("", "s", "k", "\" a \""), "[s]\r\nk=\" a \"\r\n");
  EXPECT_EQ(set("", "s", "k", "a\r\nj=b"), "[s]\r\nk=a\r\nj=b\r\n");
  EXPECT_EQ(set("", "a]b", "k=j", "\x80\xFF"), "[a]b]\r\nk=j=\x80\xFF\r\n");
}

TEST(IniSet, CommentIsNoEntry) {
  EXPECT_EQ(set("[s]\r\n;k=1\r\n", "s", ";k", "v"), "[s]\r\n;k=1\r\n;k=v\r\n");
}

TEST(IniSet, KeepsEveryOtherLineByteForByte) {
  const std::string before = "\xEF\xBB\xBF x\n\r\n  [ s ] y\r; c = d\n\n  a  =  1  \n";
  const std::string after = "\n \t\r\r\n[]\n = 2\n= 3\n[s]\nk=4\n\x1A";
  EXPECT_EQ(set(before + " K = old\n" + after, "S", "k", "new"), before + "K=new\r\n" + after);
  EXPECT_EQ(removed(before + " K = old\n" + after, "S", "k"), before + after);
}

TEST(IniRemove, TakesTheLineOut) {
  EXPECT_EQ(removed("[s]\r\na=1\r\n;c\r\nK=2\r\nb=3\r\n", "S", "k"), "[s]\r\na=1\r\n;c\r\nb=3\r\n");
}

TEST(IniRemove, LeavesTheHeader) { EXPECT_EQ(removed("[s]\r\nk=2\r\n", "s", "k"), "[s]\r\n"); }

TEST(IniRemove, HasNothingToDoForAnAbsentKey) {
  EXPECT_FALSE(remove_entry<char>("[s]\r\na=1\r\n", "s", "k"));
  EXPECT_FALSE(remove_entry<char>("[t]\r\nk=1\r\n", "s", "k"));
  EXPECT_FALSE(remove_entry<char>("", "s", "k"));
}

TEST(IniRemove, TakesOnlyTheFirstOfEqualKeys) {
  EXPECT_EQ(removed("[s]\r\nk=1\r\nk=2\r\n", "s", "k"), "[s]\r\nk=2\r\n");
}

TEST(IniRemove, LooksThroughAllSectionsOfTheName) {
  EXPECT_EQ(removed("[s]\r\nj=1\r\n[t]\r\nk=2\r\n[S]\r\nk=3\r\n", "s", "k"),
            "[s]\r\nj=1\r\n[t]\r\nk=2\r\n[S]\r\n");
  EXPECT_EQ(removed("[t]\r\n[]\r\nk=1\r\n", "", "k"), "[t]\r\n[]\r\n");
}

TEST(IniRemove, BlanksAroundTheNamesCount) {
  EXPECT_FALSE(remove_entry<char>("[s]\r\nk=1\r\n", " s", "k"));
  EXPECT_FALSE(remove_entry<char>("[s]\r\nk=1\r\n", "s", "k "));
}

TEST(IniRemove, TakesOutALineWithoutEqualsSign) {
  EXPECT_EQ(removed("[s]\r\nk\r\nk=1", "s", "k"), "[s]\r\nk=1");
}

TEST(IniEdit, Utf16IsChangedInTheSameWay) {
  const std::u16string_view content = u"[s]\n\u0436=1\n\u0437=2\n";
  EXPECT_EQ(applied(content, set_entry<char16_t>(content, u"s", u"\u0416", u"\u20AC")),
            u"[s]\n\u0436=\u20AC\r\n\u0437=2\n");
  EXPECT_EQ(applied(content, remove_entry<char16_t>(content, u"S", u"\u0416")), u"[s]\n\u0437=2\n");
}

}  // namespace
}  // namespace kw::ini
