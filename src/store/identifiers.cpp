// The methods that deal with identifiers and values in use.
#include "base/case_map.h"
#include "kwutils/clsFileReadWrite.h"
#include "store/count_values.h"
#include "store/new_identifier.h"

namespace kw {

String clsFileReadWrite::GetNewID(const String& FileName, String& Token) const {
  return CheckOrCreateNewID(FileName, Token, String());
}

String clsFileReadWrite::CheckOrCreateNewID(const String& FileName, String& Token,
                                            const String& SearchID) const {
  Token = String(upper(Token));
  return store::free_identifier(FileName, Token, SearchID);
}

void clsFileReadWrite::SearchKeyAndIDInFile(const String& FileName, const String& Token,
                                            const String& SearchKey, const String& SearchValue,
                                            const String& IDKey, const String& IDValue,
                                            std::int32_t& lRecordPresent, std::int32_t& lKeyUsed,
                                            std::int32_t& lIDUsed) const {
  lRecordPresent = lKeyUsed = lIDUsed = 0;
  store::count_values(FileName, Token, {SearchKey, SearchValue}, {IDKey, IDValue},
                      {lRecordPresent, lKeyUsed, lIDUsed});
}

}  // namespace kw
