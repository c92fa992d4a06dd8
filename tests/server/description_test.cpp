// The published interface: what callers were promised, beside what the classes describe.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "platform/guid_text.h"
#include "server/class_list.h"

namespace kw::server {
namespace {

struct Promise {
  const char* class_id;
  const char* interface_id;
  int major, minor;
  std::vector<std::pair<std::string, int>> members;  // in the order of their slots
};

std::vector<std::pair<std::string, int>> numbered(const std::vector<std::string>& names) {
  std::vector<std::pair<std::string, int>> result;
  for (const std::string& name : names) result.emplace_back(name, static_cast<int>(result.size()));
  return result;
}

std::vector<std::pair<std::string, int>> sort_members() {
  std::vector<std::pair<std::string, int>> result;
  for (const char* type : {"d", "f", "i", "l", "s"})
    for (const char* form : {"QSort", "QSortIndex"})
      result.emplace_back(std::string(type) + form, static_cast<int>(result.size()));
  int number = 10;
  for (const char* type : {"d", "f", "i", "l", "s"}) {
    if (std::string(type) == "f") number = 19;
    for (const char* form : {"NRAsc", "NRDes", "NRAscIndex", "NRDesIndex"})
      result.emplace_back(std::string(type) + "QSort" + form, number++);
  }
  return result;
}

const std::map<std::string, Promise>& promises() {
  static const std::map<std::string, Promise> all = {
      {"clsParse",
       {"{141AA2DD-593E-11D2-805F-00A0244600DF}", "{E8C76283-7233-48E0-BA4E-4BF5FD099946}", 1, 6,
        numbered({"ParseList", "ParseFields", "ParseString", "ParseTokenArray", "ParseToken",
                  "ParseTable", "ParseTableList", "ParseRecord", "ParseValuewithTokenandCheck",
                  "ParseListPlus", "ReplaceEntity", "ParseTokenListIntoColl", "ParseSubEntity",
                  "ParseSubEntitiesIntoColl"})}},
      {"clsIni",
       {"{141AA2DF-593E-11D2-805F-00A0244600DF}", "{141AA2DE-593E-11D2-805F-00A0244600DF}", 1, 0,
        numbered({"GetIni", "GetIniAndCheck", "GetInt", "WriteIni", "RemoveIniEntry",
                  "WritePrivateWindowinIni", "WriteWindowInIni"})}},
      {"clsFileUtil",
       {"{141AA2E1-593E-11D2-805F-00A0244600DF}",
        "{141AA2E0-593E-11D2-805F-00A0244600DF}",
        1,
        0,
        {{"FileNameExists", 0},
         {"MakeAbsolute", 1},
         {"UnMakeAbsolute", 2},
         {"SplitFileName", 4},
         {"StripFileFrom", 8},
         {"StripPathFrom", 9},
         {"FileOpener", 10}}}},
      {"clsFileReadWrite",
       {"{141AA2E4-593E-11D2-805F-00A0244600DF}",
        "{1BEA90C4-431C-45D7-A442-11BBACE7FBFE}",
        1,
        12,
        {{"GetEntity", 0},
         {"GetEntityWithoutTable", 1},
         {"GetTableEntry", 2},
         {"WriteEntity", 3},
         {"WriteEntitywithTable", 4},
         {"WriteRtnFile", 5},
         {"List2EntitieswithSearch", 6},
         {"List2EntitieswithSearchandSeek", 7},
         {"GetNewID", 8},
         {"GetTableEntryUsingTempFile", 11},
         {"WriteEntitywithTableUsingTempFile", 12},
         {"DeleteEntity", 13},
         {"GetEntitiesWithCollection", 16},
         {"GetEntitiesIntoColl", 17},
         {"WriteEntitiesFromCollection", 19},
         {"SetBufferSize", 23},
         {"GetEntityWithTokenAndSeek", 24},
         {"GetEntitiesIntoCollWithKey", 28},
         {"GetEntitiesWithoutTableWithCollection", 31},
         {"GetTokenEntity", 32},
         {"GetRecord", 38},
         {"SubList2EntitieswithSearch", 42},
         {"GetEntities", 49},
         {"GetEntitiesWithoutTableIntoColl", 50},
         {"IsIdInCollection", 54},
         {"GetEntityIDsIntoColl", 58},
         {"CheckOrCreateNewID", 59},
         {"SearchKeyAndIDInFile", 66},
         {"DeleteEntitiesFromCollection", 69},
         {"GetEntitiesWithoutTable", 74}}}},
      {"clsStringUtil",
       {"{141AA2E6-593E-11D2-805F-00A0244600DF}", "{141AA2E5-593E-11D2-805F-00A0244600DF}", 1, 0,
        numbered({"RemoveSpaces", "ReplaceAllOccurs", "OutStr", "InvertString", "StrNoNull",
                  "ReplaceTabCharacterswithBlank", "NumStr"})}},
      {"clsDataEdtUtils",
       {"{141AA2E8-593E-11D2-805F-00A0244600DF}", "{141AA2E7-593E-11D2-805F-00A0244600DF}", 1, 0,
        numbered({"CheckInteger", "CheckReal", "CheckRealChange", "FocusMe", "CheckRez", "Dither",
                  "IncreDecreInteger", "ValiText", "OptionTrueIs"})}},
      {"clsAPIUtil",
       {"{141AA2EA-593E-11D2-805F-00A0244600DF}", "{141AA2E9-593E-11D2-805F-00A0244600DF}", 1, 0,
        numbered({"NTDomainUserName"})}},
      {"clsQSort",
       {"{04C4EC54-EDAB-4FC0-BAFA-19329F9FF6CC}", "{DEC8C1FB-81EA-485B-B765-2BA91E8F231D}", 1, 0,
        sort_members()}},
  };
  return all;
}

TEST(Descriptions, HoldEveryPromisedClassAndNoOther) {
  EXPECT_EQ(classes().size(), promises().size());
  std::size_t methods = 0;
  for (const frame::ClassTable* table : classes()) {
    EXPECT_TRUE(promises().contains(std::string(table->description().name)));
    methods += table->description().methods.size();
  }
  EXPECT_EQ(methods, 105u);
}

TEST(Descriptions, KeepIdentifiersVersionsSlotsAndNumbers) {
  for (const frame::ClassTable* table : classes()) {
    const frame::ClassDescription& given = table->description();
    const Promise& promise = promises().at(std::string(given.name));
    EXPECT_EQ(platform::guid_text(given.class_id), promise.class_id);
    EXPECT_EQ(platform::guid_text(given.interface_id), promise.interface_id);
    EXPECT_EQ(given.version.major, promise.major);
    EXPECT_EQ(given.version.minor, promise.minor);
    std::vector<std::pair<std::string, int>> members;
    for (const frame::Method& method : given.methods)
      members.emplace_back(method.name, method.id - frame::kFirstMember);
    EXPECT_EQ(members, promise.members) << given.name;
  }
}

TEST(Descriptions, NamesAreFoundWithAndWithoutTheLibrary) {
  EXPECT_NE(find_class(u"KWUTILS.CLSPARSE"), nullptr);
  EXPECT_NE(find_class(u"clsparse"), nullptr);
  EXPECT_EQ(find_class(u"kwUtils."), nullptr);
  EXPECT_EQ(find_class(u"other.clsParse"), nullptr);
}

// Parameters as published: name, "&" for by reference, "?" for optional.
std::string signature(std::u16string_view of_class, std::u16string_view member) {
  const frame::Method* method = find_class(of_class)->method(member);
  std::string text;
  for (const frame::Parameter& parameter : method->parameters)
    text += (text.empty() ? "" : " ") + std::string(parameter.name) +
            (parameter.by_reference ? "&" : "") + (parameter.optional ? "?" : "");
  return text;
}

TEST(Descriptions, ParametersKeepNamesAndPassingModes) {
  EXPECT_EQ(signature(u"clsParse", u"ParseList"), "Buf& Seperator&?");
  EXPECT_EQ(signature(u"clsParse", u"ParseFields"), "Buf Separator& Fields&");
  EXPECT_EQ(signature(u"clsParse", u"ParseString"), "Buf Sep& ix");
  EXPECT_EQ(signature(u"clsParse", u"ParseTokenArray"), "Buf ScanToTk& tkarray& numTk&");
  EXPECT_EQ(signature(u"clsParse", u"ParseToken"), "Buf ScanToTk&?");
  EXPECT_EQ(signature(u"clsParse", u"ParseTable"), "Buf&");
  EXPECT_EQ(signature(u"clsParse", u"ParseTableList"), "Entity& Table& numRows&");
  EXPECT_EQ(signature(u"clsParse", u"ParseRecord"), "Buf&");
  EXPECT_EQ(signature(u"clsParse", u"ParseValuewithTokenandCheck"), "Buf Token& tkarray& numTk");
  EXPECT_EQ(signature(u"clsParse", u"ReplaceEntity"), "Entity& Token& replacestring&");
  EXPECT_EQ(signature(u"clsParse", u"ParseTokenListIntoColl"), "Entity& StartToken collList&");
  EXPECT_EQ(signature(u"clsParse", u"ParseSubEntity"), "Entity Token");
  EXPECT_EQ(signature(u"clsParse", u"ParseSubEntitiesIntoColl"), "Entity Token colBuffer&");
  EXPECT_EQ(signature(u"clsStringUtil", u"OutStr"), "beingSearched& sought&");
  EXPECT_EQ(signature(u"clsStringUtil", u"NumStr"), "Value");
  EXPECT_EQ(signature(u"clsIni", u"GetIni"), "Section Key default File");
  EXPECT_EQ(signature(u"clsIni", u"GetIniAndCheck"),
            "sectionName& keyName& keyType& iniFileName& vntDefaultValue&?");
  EXPECT_EQ(signature(u"clsIni", u"GetInt"), "Section& Key& default& File&");
  EXPECT_EQ(signature(u"clsIni", u"WriteIni"), "Section Key entry File");
  EXPECT_EQ(signature(u"clsIni", u"RemoveIniEntry"), "Section Key File");
  EXPECT_EQ(signature(u"clsIni", u"WritePrivateWindowinIni"), "frmForm& Section& IniFile&");
  EXPECT_EQ(signature(u"clsFileUtil", u"FileNameExists"), "FileName&");
  EXPECT_EQ(signature(u"clsFileUtil", u"MakeAbsolute"), "relPath& driveindicator&?");
  EXPECT_EQ(signature(u"clsFileUtil", u"SplitFileName"), "FileName path& name& ext&");
  EXPECT_EQ(signature(u"clsFileUtil", u"StripPathFrom"), "TheFile&");
  EXPECT_EQ(signature(u"clsFileUtil", u"FileOpener"), "FileName& Mode&");
  EXPECT_EQ(signature(u"clsDataEdtUtils", u"CheckInteger"),
            "KeyAscii& Positive& tmp& MaxTextLength& SelText&");
  EXPECT_EQ(signature(u"clsDataEdtUtils", u"CheckRealChange"), "tmp");
  EXPECT_EQ(signature(u"clsDataEdtUtils", u"IncreDecreInteger"), "ctlName& KeyCode& Shift&");
  EXPECT_EQ(signature(u"clsDataEdtUtils", u"ValiText"), "KeyIn& ValidateString& Editable&");
  EXPECT_EQ(signature(u"clsQSort", u"dQSort"), "dValue& bDescending&?");
  EXPECT_EQ(signature(u"clsQSort", u"sQSortIndex"),
            "sValue& lNewOrder& bDescending&? cmCompareMethod&?");
  EXPECT_EQ(signature(u"clsQSort", u"sQSortNRAscIndex"),
            "strValues& lngNewOrder& cmCompareMethod&");
  const std::u16string_view store = u"clsFileReadWrite";
  EXPECT_EQ(signature(store, u"GetEntity"), "FileName& Token& ID");
  EXPECT_EQ(signature(store, u"GetTableEntry"), "FileName& TableString& Token& ID Table&");
  EXPECT_EQ(signature(store, u"WriteEntity"), "FileName& Token& ID& Entity&");
  EXPECT_EQ(signature(store, u"GetEntityWithTokenAndSeek"),
            "FileName& recordToken& ID itemToken&? posSeek&?");
  EXPECT_EQ(signature(store, u"IsIdInCollection"), "Coll& ID");
  EXPECT_EQ(signature(store, u"GetEntitiesIntoCollWithKey"),
            "FileName& Token& colBuffer& UseKey&?");
  EXPECT_EQ(signature(store, u"CheckOrCreateNewID"), "FileName& Token& SearchID&?");
  EXPECT_EQ(signature(store, u"List2EntitieswithSearchandSeek"),
            "FileName& Token& Searchtoken& SearchValue& IDList& Nametoken& NameList& IDlistCLear& "
            "IDAllowDuplicate& blnSeek& lstSeek& ThirdToken&? Thirdlist&?");
}

}  // namespace
}  // namespace kw::server
