// The methods that read or write many entities at once.
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/error.h"
#include "store/bulk_read.h"
#include "store/replace_entities.h"
#include "store/trimmed_name.h"

namespace kw {

using store::SixLetters;
using store::Tables;

namespace {

// Puts a new, empty collection into the caller's variable.
Collection replaced(Collection& variable) {
  Collection collection = Collection::create();
  variable = collection;
  return collection;
}

}  // namespace

bool clsFileReadWrite::IsKeyInCollection(const Collection& coll,
                                         std::u16string_view key) const noexcept {
  return coll.holds_text(key);
}

Boolean clsFileReadWrite::IsIdInCollection(const Collection& Coll, std::u16string_view ID) const {
  return IsKeyInCollection(Coll, ID);
}

bool clsFileReadWrite::ReadEntitiesIntoColl(std::u16string_view FileName, std::u16string_view Token,
                                            Collection& colBuffer, bool UseKey) const {
  return store::entities_into(
      FileName, Token, UseKey ? store::Keys::identifiers : store::Keys::none, replaced(colBuffer));
}

Boolean clsFileReadWrite::GetEntitiesIntoColl(const String& FileName, const String& Token,
                                              Collection& colBuffer) const {
  return ReadEntitiesIntoColl(FileName, Token, colBuffer, false);
}

Boolean clsFileReadWrite::GetEntitiesIntoCollWithKey(const String& FileName, const String& Token,
                                                     Collection& colBuffer,
                                                     const Boolean& UseKey) const {
  return ReadEntitiesIntoColl(FileName, Token, colBuffer, UseKey);
}

Boolean clsFileReadWrite::GetEntities(const String& FileName, const String& Token,
                                      Array<String>& Buffer) const {
  return store::entities_into_array(FileName, Token, Tables::keep, SixLetters::every_record, Buffer,
                                    lBufferSize);
}

Boolean clsFileReadWrite::GetEntitiesWithoutTable(const String& FileName, const String& Token,
                                                  Array<String>& aBuffer) const {
  return store::entities_into_array(FileName, Token, Tables::leave_out, SixLetters::first_record,
                                    aBuffer, lBufferSize);
}

Boolean clsFileReadWrite::GetEntitiesWithoutTableIntoColl(const String& FileName,
                                                          const String& Token,
                                                          Collection& colBuffer) const {
  store::entities_without_tables_into(FileName, Token, replaced(colBuffer));
  return true;
}

Boolean clsFileReadWrite::GetEntityIDsIntoColl(const String& FileName, const String& Token,
                                               Collection& colBuffer) const {
  store::identifiers_into(FileName, Token, replaced(colBuffer));
  return true;
}

Boolean clsFileReadWrite::GetEntitiesWithCollection(const String& FileName, const String& Token,
                                                    Collection& colBuffer,
                                                    const Collection& colWithIDs) const {
  const Collection entities = replaced(colBuffer);
  store::wanted_entities_into(FileName, Token, Tables::keep, colWithIDs, entities,
                              "KwUtils.clsFileReadWrite.GetEntitiesWithCollection");
  return true;
}

Boolean clsFileReadWrite::GetEntitiesWithoutTableWithCollection(
    const String& FileName, const String& Token, Collection& colBuffer,
    const Collection& colWithIDs) const {
  const Collection entities = replaced(colBuffer);
  store::wanted_entities_into(FileName, Token, Tables::leave_out, colWithIDs, entities,
                              "KwUtils.clsFileReadWrite.GetEntitiesWithoutTableWithCollection");
  return true;
}

Boolean clsFileReadWrite::WriteEntitiesFromCollection(String& FileName, const String& Token,
                                                      Collection& colBufferKeyIsID) const {
  const Collection entities = colBufferKeyIsID;
  if (!entities || entities.count() == 0) return true;
  try {
    store::trim_name(FileName);
    store::write_entities(FileName, Token, entities);
  } catch (const std::exception&) {  // the caller learns of it by the result
    return false;
  }
  colBufferKeyIsID.reset();
  return true;
}

void clsFileReadWrite::DeleteEntitiesFromCollection(String& FileName, const String& Token,
                                                    Collection& collIDs) const {
  const Collection identifiers = collIDs;
  if (!identifiers || identifiers.count() == 0) return;
  store::trim_name(FileName);
  store::remove_entities(FileName, Token, identifiers);
  collIDs.reset();
}

}  // namespace kw
