#include "store/description.h"

#include "frame/method.h"
#include "kwutils/clsFileReadWrite.h"

namespace kw {
namespace {

using frame::method;
using frame::optional;
using C = clsFileReadWrite;
using Methods = std::vector<frame::Method>;

void add_first(Methods& to) {
  to.push_back(method<&C::GetEntity>(0, "GetEntity", {"FileName", "Token", "ID"},
                                     "The text of one entity."));
  to.push_back(method<&C::GetEntityWithoutTable>(1, "GetEntityWithoutTable",
                                                 {"FileName", "Token", "ID"},
                                                 "The text of one entity without its table."));
  to.push_back(method<&C::GetTableEntry>(2, "GetTableEntry",
                                         {"FileName", "TableString", "Token", "ID", "Table"},
                                         "The rows of an entity's table."));
  to.push_back(method<&C::WriteEntity>(3, "WriteEntity", {"FileName", "Token", "ID", "Entity"},
                                       "Replaces, adds or removes one entity."));
  to.push_back(method<&C::WriteEntitywithTable>(4, "WriteEntitywithTable",
                                                {"FileName", "Token", "ID", "Entity", "Table"},
                                                "Writes an entity with a table in it."));
  to.push_back(method<&C::WriteRtnFile>(5, "WriteRtnFile", {"strFile"}, "Does nothing."));
  to.push_back(method<&C::List2EntitieswithSearch>(
      6, "List2EntitieswithSearch",
      {"FileName", "Token", "Searchtoken", "SearchValue", "IDList", "Nametoken", "NameList",
       "IDlistCLear", "IDAllowDuplicate", optional("ThirdToken"), optional("Thirdlist"),
       optional("FourthToken"), optional("Fourthlist")},
      "Lists the identifiers and names of entities."));
  to.push_back(method<&C::List2EntitieswithSearchandSeek>(
      7, "List2EntitieswithSearchandSeek",
      {"FileName", "Token", "Searchtoken", "SearchValue", "IDList", "Nametoken", "NameList",
       "IDlistCLear", "IDAllowDuplicate", "blnSeek", "lstSeek", optional("ThirdToken"),
       optional("Thirdlist")},
      "Lists the identifiers, names and file positions of entities."));
  to.push_back(method<&C::GetNewID>(8, "GetNewID", {"FileName", "Token"},
                                    "The next free numeric identifier of a type."));
  to.push_back(method<&C::GetTableEntryUsingTempFile>(
      11, "GetTableEntryUsingTempFile",
      {"FileName", "TableString", "Token", "ID", "Table", "tempfile", "IsTableStored"},
      "The rows of an entity's table, a long one in a file."));
  to.push_back(method<&C::WriteEntitywithTableUsingTempFile>(
      12, "WriteEntitywithTableUsingTempFile",
      {"FileName", "Token", "ID", "Entity", "Table", "TableStoredinfile", "isTableStoredinfile"},
      "Writes an entity with a table from an array or a file."));
  to.push_back(method<&C::DeleteEntity>(13, "DeleteEntity", {"FileName", "Token", "ID"},
                                        "Removes one entity, or all of a type."));
}

void add_second(Methods& to) {
  to.push_back(method<&C::GetEntitiesWithCollection>(
      16, "GetEntitiesWithCollection", {"FileName", "Token", "colBuffer", "colWithIDs"},
      "The entities whose identifiers are in a collection."));
  to.push_back(method<&C::GetEntitiesIntoColl>(17, "GetEntitiesIntoColl",
                                               {"FileName", "Token", "colBuffer"},
                                               "All entities of a type as a collection."));
  to.push_back(method<&C::WriteEntitiesFromCollection>(19, "WriteEntitiesFromCollection",
                                                       {"FileName", "Token", "colBufferKeyIsID"},
                                                       "Writes the entities of a collection."));
  to.push_back(method<&C::SetBufferSize>(23, "SetBufferSize", {"BufferSize"},
                                         "By how many elements arrays grow."));
  to.push_back(method<&C::GetEntityWithTokenAndSeek>(
      24, "GetEntityWithTokenAndSeek",
      {"FileName", "recordToken", "ID", optional("itemToken"), optional("posSeek")},
      "The text of one entity, by any item and from any position."));
  to.push_back(method<&C::GetEntitiesIntoCollWithKey>(
      28, "GetEntitiesIntoCollWithKey", {"FileName", "Token", "colBuffer", optional("UseKey")},
      "All entities of a type as a collection, by identifier if wanted."));
  to.push_back(method<&C::GetEntitiesWithoutTableWithCollection>(
      31, "GetEntitiesWithoutTableWithCollection", {"FileName", "Token", "colBuffer", "colWithIDs"},
      "The entities, without tables, whose identifiers are in a collection."));
  to.push_back(method<&C::GetTokenEntity>(32, "GetTokenEntity", {"FileName", "Token"},
                                          "The text of the first entity of a type."));
  to.push_back(method<&C::GetRecord>(38, "GetRecord", {"iu"},
                                     "The next record of a file that is open under a number."));
}

void add_third(Methods& to) {
  to.push_back(method<&C::SubList2EntitieswithSearch>(
      42, "SubList2EntitieswithSearch",
      {"FileName", "MainToken", "SubToken", "Searchtoken", "SearchValue", "IDList", "Nametoken",
       "NameList", "IDlistCLear", "IDAllowDuplicate"},
      "Lists the identifiers and names of parts of entities."));
  to.push_back(method<&C::GetEntities>(49, "GetEntities", {"FileName", "Token", "Buffer"},
                                       "All entities of a type as an array."));
  to.push_back(method<&C::GetEntitiesWithoutTableIntoColl>(
      50, "GetEntitiesWithoutTableIntoColl", {"FileName", "Token", "colBuffer"},
      "All entities of a type, without tables, by identifier."));
  to.push_back(method<&C::IsIdInCollection>(54, "IsIdInCollection", {"Coll", "ID"},
                                            "Whether a collection holds a text under a key."));
  to.push_back(method<&C::GetEntityIDsIntoColl>(58, "GetEntityIDsIntoColl",
                                                {"FileName", "Token", "colBuffer"},
                                                "The identifiers of all entities of a type."));
  to.push_back(method<&C::CheckOrCreateNewID>(59, "CheckOrCreateNewID",
                                              {"FileName", "Token", optional("SearchID")},
                                              "An identifier if it is free, else the next one."));
  to.push_back(
      method<&C::SearchKeyAndIDInFile>(66, "SearchKeyAndIDInFile",
                                       {"FileName", "Token", "SearchKey", "SearchValue", "IDKey",
                                        "IDValue", "lRecordPresent", "lKeyUsed", "lIDUsed"},
                                       "Counts how often two values are in use."));
  to.push_back(method<&C::DeleteEntitiesFromCollection>(
      69, "DeleteEntitiesFromCollection", {"FileName", "Token", "collIDs"},
      "Removes the entities whose identifiers are in a collection."));
  to.push_back(method<&C::GetEntitiesWithoutTable>(74, "GetEntitiesWithoutTable",
                                                   {"FileName", "Token", "aBuffer"},
                                                   "All entities of a type, without tables."));
}

Methods methods() {
  Methods all;
  add_first(all);
  add_second(all);
  add_third(all);
  return all;
}

}  // namespace

const frame::ClassTable& clsFileReadWrite_table() {
  static const frame::ClassTable table = frame::table_of<clsFileReadWrite>({
      .name = "clsFileReadWrite",
      .class_id = {0x141AA2E4, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x1BEA90C4, 0x431C, 0x45D7, {0xA4, 0x42, 0x11, 0xBB, 0xAC, 0xE7, 0xFB, 0xFE}},
      .version = {1, 12},
      .help = "Keyed entities in text files",
      .earlier_versions = 12,
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
