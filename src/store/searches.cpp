// The methods that fill pick lists.
#include "kwutils/clsFileReadWrite.h"
#include "platform/files.h"
#include "store/list_search.h"

namespace kw {

namespace {

void use_default(String& token, std::u16string_view keyword) {
  if (token.empty()) token = String(keyword);
}

// Makes the lists ready; false when there is no file to list.
bool begin_search(const String& file, const store::ListVariables& variables, bool clear) {
  if (clear) store::EntityLister::clear(variables);
  if (!platform::files().exists(file)) return false;
  use_default(variables.search_token, u"id");
  use_default(variables.name_token, u"nm");
  return true;
}

}  // namespace

void clsFileReadWrite::List2EntitieswithSearch(const String& FileName, const String& Token,
                                               String& Searchtoken, const String& SearchValue,
                                               Collection& IDList, String& Nametoken,
                                               Collection& NameList, const Boolean& IDlistCLear,
                                               const Boolean&, Variant& ThirdToken,
                                               Variant& Thirdlist, Variant& FourthToken,
                                               Variant& Fourthlist) const {
  const store::ListVariables variables{Searchtoken,
                                       SearchValue,
                                       IDList,
                                       Nametoken,
                                       NameList,
                                       {ThirdToken, Thirdlist},
                                       {FourthToken, Fourthlist},
                                       nullptr};
  if (!begin_search(FileName, variables, IDlistCLear)) return;
  store::EntityLister lister(variables);
  store::list_entities(FileName, Token, lister);
}

void clsFileReadWrite::List2EntitieswithSearchandSeek(
    const String& FileName, const String& Token, String& Searchtoken, const String& SearchValue,
    Collection& IDList, String& Nametoken, Collection& NameList, const Boolean& IDlistCLear,
    const Boolean&, const Boolean& blnSeek, Collection& lstSeek, Variant& ThirdToken,
    Variant& Thirdlist) const {
  Variant none = Variant::missing();
  const store::ListVariables variables{Searchtoken,  SearchValue,
                                       IDList,       Nametoken,
                                       NameList,     {ThirdToken, Thirdlist},
                                       {none, none}, blnSeek ? &lstSeek : nullptr};
  if (!begin_search(FileName, variables, IDlistCLear)) return;
  store::EntityLister lister(variables);
  store::list_entities(FileName, Token, lister);
}

void clsFileReadWrite::SubList2EntitieswithSearch(const String& FileName, const String& MainToken,
                                                  const String& SubToken, String& Searchtoken,
                                                  const String& SearchValue, Collection& IDList,
                                                  String& Nametoken, Collection& NameList,
                                                  const Boolean& IDlistCLear,
                                                  const Boolean&) const {
  Variant none = Variant::missing();
  const store::ListVariables variables{Searchtoken, SearchValue,  IDList,       Nametoken,
                                       NameList,    {none, none}, {none, none}, nullptr};
  if (!begin_search(FileName, variables, IDlistCLear)) return;
  store::EntityLister lister(variables);
  store::list_parts(FileName, MainToken, SubToken, lister);
}

}  // namespace kw
