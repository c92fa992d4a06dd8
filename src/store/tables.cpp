// The methods that read a table.
#include "kwutils/clsFileReadWrite.h"
#include "store/table_entry.h"

namespace kw {

std::int32_t clsFileReadWrite::GetTableEntry(const String& FileName, const String&,
                                             const String& Token, std::u16string_view ID,
                                             Array<String>& Table) const {
  return store::table_entry({FileName, Token, ID}, Table, lBufferSize);
}

std::int32_t clsFileReadWrite::GetTableEntryUsingTempFile(
    const String& FileName, const String&, const String& Token, std::u16string_view ID,
    Array<String>& Table, const String& tempfile, Boolean& IsTableStored) const {
  return store::table_entry_with_spill({FileName, Token, ID}, Table, tempfile, IsTableStored,
                                       lBufferSize);
}

}  // namespace kw
