#include "config/ini_test.h"
#include "platform/files.h"
#include "platform/memory_files.h"
#include "support/expect_error.h"

namespace kw {
namespace {

class GetIniAndCheck : public testing::IniTest {
 protected:
  // The value of k, stored as given, read as `type`.
  Variant get(const String& type, const std::string& value) {
    folder_.write("a.ini", "[s]\r\nk=" + value + "\r\n");
    return ini_.GetIniAndCheck(u"s", u"k", type, u"a.ini");
  }
  Variant get_missing(const String& type) {
    folder_.write("a.ini", "[s]\r\n");
    return ini_.GetIniAndCheck(u"s", u"k", type, u"a.ini");
  }
  bool is(const Variant& value, bool truth) {
    return value.contents().vt == kVtBool && value.contents().boolVal == (truth ? -1 : 0);
  }

  const std::u16string kMissing = u"Missing [s/k] in ini file 'a.ini'";
  const std::u16string kNotNumerical = u"[s/k] in ini file 'a.ini' is not a numerical value";
  const std::u16string kNotBoolean = u"[s/k] in ini file 'a.ini' is not a boolean value";
};

TEST_F(GetIniAndCheck, GivesAStringAsRead) {
  EXPECT_EQ(get(u"String", " a b ").text().view(), u"a b");
  EXPECT_EQ(get(u"sTRING", "12").contents().vt, kVtBstr);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, GivesNumbersOfTheTypeNamed) {
  const Variant integer = get(u"integer", "-12");
  EXPECT_EQ(integer.contents().vt, kVtI2);
  EXPECT_EQ(integer.to_int16(), -12);
  const Variant whole = get(u"Long", "1E5");
  EXPECT_EQ(whole.contents().vt, kVtI4);
  EXPECT_EQ(whole.to_int32(), 100000);
  const Variant single = get(u"SINGLE", "0.1");
  EXPECT_EQ(single.contents().vt, kVtR4);
  EXPECT_EQ(single.to_single(), 0.1f);
  const Variant real = get(u"double", " 0.1 ");
  EXPECT_EQ(real.contents().vt, kVtR8);
  EXPECT_EQ(real.to_double(), 0.1);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, RoundsHalvesToTheEvenNeighbour) {
  EXPECT_EQ(get(u"integer", "2.5").to_int16(), 2);
  EXPECT_EQ(get(u"integer", "3.5").to_int16(), 4);
  EXPECT_EQ(get(u"long", "-2.5").to_int32(), -2);
}

TEST_F(GetIniAndCheck, OverflowsForANumberTooLargeForItsType) {
  EXPECT_EQ(testing::number_of([&] { get(u"integer", "40000"); }), 6);
  EXPECT_EQ(testing::number_of([&] { get(u"long", "2147483648"); }), 6);
  EXPECT_EQ(testing::number_of([&] { get(u"single", "1E39"); }), 6);
  EXPECT_EQ(testing::number_of([&] { get(u"double", "1E309"); }), 6);
  EXPECT_EQ(testing::number_of([&] { get(u"bool", "1E309"); }), 6);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, TellsOfAValueThatIsNoNumber) {
  for (const char16_t* type : {u"integer", u"long", u"single", u"double"}) {
    for (const char* value : {"0x10", "12abc", "nan", "1d3", "1,5", "-"}) {
      messages_.clear();
      EXPECT_TRUE(get(type, value).is_empty()) << value;
      EXPECT_EQ(messages_, Messages{kNotNumerical}) << value;
    }
  }
}

TEST_F(GetIniAndCheck, ReadsTruthFromALetterOrANumber) {
  for (const char* value : {"yes", "Tomato", "2.5", "-1", "t", "1e-300"}) {
    EXPECT_TRUE(is(get(u"bool", value), true)) << value;
  }
  for (const char* value : {"0", "no", "False", "0.0", "-0", "nan"}) {
    EXPECT_TRUE(is(get(u"BOOLEAN", value), false)) << value;
  }
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, TellsOfAValueThatIsNoTruth) {
  EXPECT_EQ(get(u"bool", "maybe").text().view(), u"NOTHING FOUND");
  EXPECT_EQ(messages_, Messages{kNotBoolean});
}

TEST_F(GetIniAndCheck, AnEmptyValueIsMissing) {
  EXPECT_EQ(get(u"string", "").text().view(), u"__NO_VALUE__");
  EXPECT_EQ(messages_, Messages{kMissing});
}

TEST_F(GetIniAndCheck, WithoutDefaultTellsOfAMissingKeyAndGoesOn) {
  EXPECT_TRUE(get_missing(u"integer").is_empty());
  EXPECT_EQ(messages_, (Messages{kMissing, kNotNumerical}));
  messages_.clear();
  EXPECT_TRUE(get_missing(u"double").is_empty());
  EXPECT_EQ(messages_, (Messages{kMissing, kNotNumerical}));
  messages_.clear();
  EXPECT_EQ(get_missing(u"string").text().view(), u"__NO_VALUE__");
  EXPECT_EQ(messages_, Messages{kMissing});
  messages_.clear();
  EXPECT_EQ(get_missing(u"bool").text().view(), u"NOTHING FOUND");
  EXPECT_EQ(messages_, (Messages{kMissing, kNotBoolean}));
}

TEST_F(GetIniAndCheck, TellsTwiceOfAMissingLong) {
  EXPECT_TRUE(get_missing(u"Long").is_empty());
  EXPECT_EQ(messages_, (Messages{kMissing, kMissing}));
}

TEST_F(GetIniAndCheck, TakesTheWordForNoValueInAnyCaseForALong) {
  EXPECT_TRUE(get(u"long", "__no_value__").is_empty());
  EXPECT_EQ(messages_, Messages{kMissing});
  messages_.clear();
  EXPECT_EQ(get(u"string", "__no_value__").text().view(), u"__no_value__");
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, GivesTheDefaultUnchangedForAMissingKey) {
  folder_.write("a.ini", "[s]\r\n");
  const auto get_default = [&](const Variant& value) {
    return ini_.GetIniAndCheck(u"s", u"k", u"integer", u"a.ini", value);
  };
  EXPECT_EQ(get_default(u"x").text().view(), u"x");
  EXPECT_EQ(get_default(Variant(1e300)).to_double(), 1e300);
  EXPECT_EQ(get_default(Boolean(true)).contents().vt, kVtBool);
  EXPECT_TRUE(get_default(Variant()).is_empty());
  EXPECT_EQ(get_default(Variant(u"")).contents().vt, kVtBstr);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, TheDefaultDoesNotStandInForAMalformedValue) {
  folder_.write("a.ini", "[s]\r\nk=x\r\n");
  EXPECT_TRUE(ini_.GetIniAndCheck(u"s", u"k", u"long", u"a.ini", u"5").is_empty());
  EXPECT_EQ(messages_, Messages{kNotNumerical});
}

TEST_F(GetIniAndCheck, TellsOfAnUnknownType) {
  EXPECT_TRUE(get(u"Date", "x").is_empty());
  EXPECT_EQ(messages_, Messages{u"Unknown key 'Date' in 'GetIniAndCheck'"});
}

TEST_F(GetIniAndCheck, GivesNothingSilentlyWhereThereIsNoFile) {
  for (const char16_t* name : {u"none.ini", u"none\\a.ini", u"", u"  ", u"D:\\a.ini"}) {
    EXPECT_TRUE(ini_.GetIniAndCheck(u"s", u"k", u"string", name, u"default").is_empty());
  }
  EXPECT_TRUE(messages_.empty());
}

TEST_F(GetIniAndCheck, AFolderCountsAsAFile) {
  std::filesystem::create_directory(folder_ / "a.ini");
  EXPECT_EQ(ini_.GetIniAndCheck(u"s", u"k", u"string", u"a.ini", u"default").text().view(),
            u"default");
}

TEST_F(GetIniAndCheck, CaseOfTheFileNameDoesNotMatter) {
  folder_.write("A.INI", "[s]\r\nk=v\r\n");
  EXPECT_EQ(ini_.GetIniAndCheck(u"s", u"k", u"string", u"a.ini").text().view(), u"v");
}

// A disk that answers every question with the same error.
class BrokenFiles : public platform::MemoryFiles {
 public:
  void check_attributes(std::u16string_view name) override {
    throw Error(number, std::string(name.begin(), name.end()));
  }
  ErrorNumber number = ErrorNumber::permission_denied;
};

TEST_F(GetIniAndCheck, TellsOfAFileThatCannotBeLookedAt) {
  BrokenFiles broken;
  const platform::ScopedFileService in_use(broken);
  EXPECT_TRUE(ini_.GetIniAndCheck(u"s", u"k", u"string", u"a.ini").is_empty());
  EXPECT_EQ(messages_, Messages{u"Error 70 occured in FileNameExists: Permission denied: 'a.ini'"});
}

TEST_F(GetIniAndCheck, IsSilentOnErrorsThatMeanThatThereIsNoFile) {
  BrokenFiles broken;
  const platform::ScopedFileService in_use(broken);
  for (const ErrorNumber number : {ErrorNumber::bad_file_name_or_number,
                                   ErrorNumber::file_not_found, ErrorNumber::path_not_found}) {
    broken.number = number;
    EXPECT_TRUE(ini_.GetIniAndCheck(u"s", u"k", u"string", u"a.ini").is_empty());
  }
  EXPECT_TRUE(messages_.empty());
}

}  // namespace
}  // namespace kw
