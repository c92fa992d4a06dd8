#include "config/ini_test.h"
#include "support/expect_error.h"
#include "support/texts.h"

namespace kw {
namespace {

using Ini = testing::IniTest;

class GetIni : public Ini {
 protected:
  std::u16string get(std::u16string_view file, std::u16string_view fallback = u"d") {
    return testing::text_of(ini_.GetIni(u"s", u"k", fallback, file));
  }
};

TEST_F(GetIni, ABareNameMeansTheCurrentDirectory) {
  folder_.write("app.ini", "[s]\r\nk=v\r\n");
  EXPECT_EQ(get(u"app.ini"), u"v");
}

TEST_F(GetIni, ANameWithAFolderOrADriveIsUsedAsGiven) {
  std::filesystem::create_directory(folder_ / "cfg");
  folder_.write("cfg/app.ini", "[s]\r\nk=v\r\n");
  folder_.write("app.ini", "[s]\r\nk=w\r\n");
  EXPECT_EQ(get(u"cfg\\app.ini"), u"v");
  EXPECT_EQ(get(u"C:app.ini"), u"w");
}

TEST_F(GetIni, ANativeAbsoluteNameIsItself) {
  folder_.write("app.ini", "[s]\r\nk=v\r\n");
  EXPECT_EQ(get(folder_.name("app.ini")), u"v");
}

TEST_F(GetIni, AnEmptyNameFindsNothing) { EXPECT_EQ(get(u""), u"d"); }

TEST_F(GetIni, GivesTheDefaultForAnEmptyValue) {
  folder_.write("app.ini", "[s]\r\nk=\r\n");
  EXPECT_EQ(get(u"app.ini"), u"d");
}

TEST_F(GetIni, GivesTheDefaultForAMissingFileSectionOrKey) {
  EXPECT_EQ(get(u"none.ini"), u"d");
  folder_.write("app.ini", "[t]\r\nk=1\r\n[s]\r\nj=1\r\n");
  EXPECT_EQ(get(u"app.ini"), u"d");
  EXPECT_EQ(ini_.GetIni(u"none", u"k", u"d", u"app.ini").view(), u"d");
}

TEST_F(GetIni, CutsToTheFirst1023Characters) {
  folder_.write("app.ini", "[s]\r\nk=" + std::string(1023, 'x') + "y\r\n");
  EXPECT_EQ(get(u"app.ini"), std::u16string(1023, u'x'));
}

TEST_F(GetIni, TextCrossesTheCodePage) {
  folder_.write("app.ini", "[\xE9]\r\nk=\x80\x81\xFF\r\n?=q\r\n");
  EXPECT_EQ(ini_.GetIni(u"\u00E9", u"k", u"", u"app.ini").view(), u"\u20AC\u0081\u00FF");
  EXPECT_EQ(ini_.GetIni(u"\u00E9", u"\u0416", u"", u"app.ini").view(), u"q");
}

TEST_F(GetIni, NulEndsTexts) {
  folder_.write("app.ini", "[s]\r\nk=v\r\n");
  using namespace std::string_view_literals;
  EXPECT_EQ(ini_.GetIni(u"s\0x"sv, u"k\0x"sv, u"", u"app.ini\0x"sv).view(), u"v");
  EXPECT_EQ(get(u"none.ini", u"a\0b"sv), u"a");
}

TEST_F(GetIni, TheDefaultComesBackAsTheProfileFunctionTreatsIt) {
  EXPECT_EQ(get(u"none.ini", u"a  "), u"a");
  EXPECT_EQ(get(u"none.ini", u"'a'"), u"a");
  EXPECT_EQ(get(u"none.ini", u"\u0416"), u"?");
}

TEST_F(GetIni, TheDefaultIsUntouchedWhereTheFunctionCopiesNothing) {
  using namespace std::string_view_literals;
  EXPECT_EQ(get(u"none.ini", u"\0b"sv), u"\0b"sv);
  EXPECT_EQ(get(u"none.ini", u"\"\""), u"\"\"");
  EXPECT_EQ(get(u"none.ini", u""), u"");
}

class GetInt : public Ini {
 protected:
  std::int16_t get(const std::string& value, std::int16_t fallback = 7) {
    std::filesystem::create_directory(folder_ / "windows");
    folder_.write("windows/app.ini", "[s]\r\nk=" + value + "\r\n");
    const Variant number = ini_.GetInt(u"s", u"k", fallback, u"app.ini");
    EXPECT_EQ(number.contents().vt, kVtI2);
    return number.to_int16();
  }
};

TEST_F(GetInt, ABareNameMeansTheSystemsDirectory) {
  folder_.write("app.ini", "[s]\r\nk=5\r\n");
  EXPECT_EQ(get("3"), 3);
  EXPECT_EQ(ini_.GetInt(u"s", u"k", 7, u".\\app.ini").to_int16(), 5);
}

TEST_F(GetInt, GivesTheNumberThatTheValueBeginsWith) {
  EXPECT_EQ(get("12abc"), 12);
  EXPECT_EQ(get("-5"), -5);
  EXPECT_EQ(get("0x10"), 16);
}

TEST_F(GetInt, GivesTheDefaultForZeroAndForNothing) {
  EXPECT_EQ(get("0"), 7);
  EXPECT_EQ(get("abc"), 7);
  EXPECT_EQ(get(""), 7);
  EXPECT_EQ(get("0", -7), -7);
  EXPECT_EQ(ini_.GetInt(u"s", u"none", -7, u"app.ini").to_int16(), -7);
  EXPECT_EQ(ini_.GetInt(u"s", u"k", -7, u"none.ini").to_int16(), -7);
}

TEST_F(GetInt, ANumberBeyond16BitsOverflows) {
  EXPECT_EQ(get("32767"), 32767);
  EXPECT_EQ(get("-32768"), -32768);
  for (const char* value : {"32768", "-32769", "70000", "99999999999"}) {
    EXPECT_EQ(testing::number_of([&] { get(value); }), 6) << value;
  }
}

TEST_F(GetInt, The32BitsOfTheNumberAreSigned) { EXPECT_EQ(get("4294967295"), -1); }

using WriteIni = Ini;

TEST_F(WriteIni, GivesOneAndMakesTheFile) {
  EXPECT_EQ(ini_.WriteIni(u"s", u"k", u"\u20AC", u"app.ini"), 1);
  EXPECT_EQ(folder_.read("app.ini"), "[s]\r\nk=\x80\r\n");
}

TEST_F(WriteIni, GivesZeroOnFailure) {
  EXPECT_EQ(ini_.WriteIni(u"s", u"k", u"v", u"none\\app.ini"), 0);
  EXPECT_EQ(ini_.WriteIni(u"s", u"k", u"v", u""), 0);
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(WriteIni, AnEmptyTextIsAValueAndRemovesNothing) {
  EXPECT_EQ(ini_.WriteIni(u"s", u"k", u"", u"app.ini"), 1);
  EXPECT_EQ(folder_.read("app.ini"), "[s]\r\nk=\r\n");
}

using RemoveIniEntry = Ini;

TEST_F(RemoveIniEntry, GivesZeroWhetherOrNotTheKeyExisted) {
  folder_.write("app.ini", "[s]\r\nk=v\r\nj=w\r\n");
  EXPECT_EQ(ini_.RemoveIniEntry(u"s", u"k", u"app.ini"), 0);
  EXPECT_EQ(ini_.RemoveIniEntry(u"s", u"k", u"app.ini"), 0);
  EXPECT_EQ(ini_.RemoveIniEntry(u"s", u"k", u"none.ini"), 0);
  EXPECT_EQ(folder_.read("app.ini"), "[s]\r\nj=w\r\n");
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"app.ini"});
}

}  // namespace
}  // namespace kw
