// clsFileReadWrite: entities in plain text files.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "kwutils/array.h"
#include "kwutils/boolean.h"
#include "kwutils/clsFileUtil.h"
#include "kwutils/clsParse.h"
#include "kwutils/collection.h"
#include "kwutils/comment_spec.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw {

// An entity file holds blocks. One opens with its type in upper case and closes with the first line
// that ends in the same word in lower case. Between them stand items, a keyword and its value each,
// among them the identifier "id" on the first line, and perhaps one table between TBLE and tble.
// The examples read this file, net.dat, each from the beginning:
//
//   ; pumps of the north district
//   NODE id 'B1' nm 'Inlet' node
//   NODE id 'B2' nm 'Outlet' TBLE 0.0 1.5 <
//     1.0 2.5 <
//   tble node
//   LINK id 'L1' PIPE id 'P1' nm 'Upper' pipe PIPE id 'P2' nm 'Lower' pipe link
//
//   kw::clsFileReadWrite store;
//   kw::String file = u"net.dat";
//   store.GetEntity(file, u"node", u"b1");  // u"id 'B1' nm 'Inlet' "
//
// Readers hand an entity out as one text: its lines joined by CR LF, without the opening and the
// closing word. Tabs and no-break spaces read as blanks; blanks around a line, empty lines and
// comments (lines that begin with ; * or //, and blocks from /* to the line with */) do not count.
// An entity that the file's end cuts off is given as far as it goes. A block of another type is
// passed over whole; a first line whose first word has six letters may stand alone.
//
// `FileName` is taken as given by the readers and trimmed, for the caller too, by the writers.
// `Token` is a type in any case with blanks around it, except where lists are filled:
// List2EntitieswithSearch, List2EntitieswithSearchandSeek and SubList2EntitieswithSearch compare it
// as it stands. There it must be in upper case, without blanks; node lists nothing and raises no
// error. Files are in the system's code page; a character that it lacks is written as "?" and found
// nowhere. Positions in a file count bytes from 1, and entities and rows fill arrays from
// element 1.
//
// Errors of reading: 53 (file not found), 76 (path not found), 70 (permission denied, or a
// directory), 52 (impossible name), 57 (input/output). Every method that reads or writes a file
// raises them unless its text says otherwise. What was changed by reference before an error stays
// changed; a method whose text names no change makes none.
//
// Writers copy the whole file into a temporary file and put that in the place of the old one in one
// step. Lines come back trimmed, empty ones are gone, comments stay as they were, in front of the
// entity in which they stood. The temporary file has the name up to the first "." among its last
// five characters, and "tmp"; two writers of files that share it exclude each other: error 70. On
// any failure the old file stays as it was. A missing file is created.
//
// Errors of writing: 5 for a name of fewer than five characters or one that ends in ".tmp", 61
// (disk full) and those of reading.
class clsFileReadWrite {
 public:
  clsFileReadWrite();

  // One entity by its identifier.

  // The first entity of the type whose item "id" has the value `ID`, in any case; "" when there is
  // none. An `ID` of the form nm 'Outlet' asks for the item named in it; one equal to `Token`, both
  // trimmed, for the first entity of the type. Only the first line of an entity is searched.
  //
  //   store.GetEntity(file, u"node", u"nm 'inlet'");  // u"id 'B1' nm 'Inlet' "
  //   store.GetEntity(file, u"node", u"node");        // u"id 'B1' nm 'Inlet' "
  //   store.GetEntity(file, u"node", u"B9");          // u""
  String GetEntity(const String& FileName, const String& Token, std::u16string_view ID) const;

  // The first entity of the type that opens on a line which seems to hold `ID`, without its table:
  // a line whose first "id", be it part of a word, is followed by the word `ID` to the letter; for
  // an `ID` with an apostrophe a line that holds it anywhere; for one equal to `Token` the first
  // line that holds it and every later one. "" when there is none. Once TBLE was met only lines
  // with tble are kept, from behind that on. Error 5 when too little of the closing word is left
  // behind tble.
  //
  //   store.GetEntityWithoutTable(file, u"node", u"B2");  // u"id 'B2' nm 'Outlet' \r\n "
  String GetEntityWithoutTable(const String& FileName, const String& Token,
                               std::u16string_view ID) const;

  // The rows of the table of the entity that GetEntityWithoutTable finds, each with CR LF, as
  // elements 1 to their number, which is the result; none give 0 and an array without elements.
  // Without such an entity 0, and elements 1 to the buffer size stay empty. What `Table` held is
  // dropped. `TableString` is neither read nor written. Errors: 9 when the buffer size is below 1,
  // 10 when `Table` is fixed or locked.
  //
  //   kw::Array<kw::String> rows;
  //   store.GetTableEntry(file, u"", u"node", u"B2", rows);  // 2
  //   rows.at(1);                                            // u" 0.0 1.5 <\r\n"
  //   rows.at(2);                                            // u"1.0 2.5 <\r\n"
  std::int32_t GetTableEntry(const String& FileName, const String& TableString, const String& Token,
                             std::u16string_view ID, Array<String>& Table) const;

  // Writing one entity.

  // Puts `Entity`, not trimmed, between the type's words on a line of its own, in the place of the
  // first entity of the type whose first line holds " id 'ID' " to the letter; further ones are
  // dropped, and without any it is added at the end. An `ID` with an apostrophe is sought as it
  // stands; for "" every entity of the type is replaced. A blank `Entity` removes. `Entity` brings
  // its item "id" itself.
  //
  // A line inside a block is taken for a first one, too, when it holds what is sought.
  //
  //   store.WriteEntity(file, u"node", u"B3", u"id 'B3' nm 'Well'");
  //   // adds the line NODE id 'B3' nm 'Well' node
  //   store.WriteEntity(file, u"node", u"B3", u"");
  //   // removes it
  void WriteEntity(String& FileName, const String& Token, const String& ID,
                   const String& Entity) const;

  // The same, with elements 1 to the upper bound of `Table`, which bring their line ends, in the
  // place of the first "??" of `Entity`; without "??" they are not looked at. `ID` is always sought
  // as " id 'ID' ". Error 9 when `Table` was never dimensioned or begins above 1.
  //
  //   kw::Array<kw::String> levels;
  //   levels.redim(1, 2);
  //   levels.at(1) = u"0.0 1.7 <\r\n";
  //   levels.at(2) = u"1.0 2.7 <\r\n";
  //   store.WriteEntitywithTable(file, u"node", u"B2", u"id 'B2' TBLE ??tble", levels);
  //   // writes NODE id 'B2' TBLE 0.0 1.7 <
  //   //        1.0 2.7 <
  //   //        tble node
  void WriteEntitywithTable(String& FileName, const String& Token, const String& ID,
                            const String& Entity, const Array<String>& Table) const;

  // Reads a little of the file and forgets it: nothing is changed or returned. Raises no error.
  void WriteRtnFile(const String& strFile) const;

  // Lists of entities.

  // Fills `IDList` with the identifiers and `NameList` with the names of all entities of the type,
  // both under the identifiers; an identifier that is there already adds nothing. Only first lines
  // are read. `Token` opens as it stands: in lower case, or with blanks, it lists nothing.
  //
  // `Searchtoken` and `Nametoken` name the items, "id" and "nm" when "" (also in the variables); an
  // apostrophe at their end is taken off, and tabs in the further tokens become blanks. A
  // `SearchValue` such as nm 'Outlet' admits only entities with that value, to the letter.
  // Identifiers that begin with "tmp", in any case, are left out. An entity without identifier adds
  // its name without a key. With `IDlistCLear` all lists are made new first, else they must be
  // there: what cannot be added is passed over. `IDAllowDuplicate` has no effect. A token and its
  // list are used when both are passed. A missing file lists nothing.
  //
  // The host may process its messages after each entity.
  //
  //   kw::Collection ids, names;
  //   kw::String id, name;
  //   store.List2EntitieswithSearch(file, u"NODE", id, u"", ids, name, names, true, false);
  //   // id is u"id"; name is u"nm"
  //   ids.count();               // 2
  //   names.item(u"B2").text();  // u"Outlet"
  //   store.List2EntitieswithSearch(file, u"node", id, u"", ids, name, names, true, false);
  //   ids.count();  // 0
  void List2EntitieswithSearch(const String& FileName, const String& Token, String& Searchtoken,
                               const String& SearchValue, Collection& IDList, String& Nametoken,
                               Collection& NameList, const Boolean& IDlistCLear,
                               const Boolean& IDAllowDuplicate, Variant& ThirdToken = left_out(),
                               Variant& Thirdlist = left_out(), Variant& FourthToken = left_out(),
                               Variant& Fourthlist = left_out()) const;

  // The same; with `blnSeek`, `lstSeek` gets under each identifier the position, from 1, of the
  // byte behind the line before the entity's first one, comments and empty lines between them
  // included. A position beyond 2147483647 is not added, nor that of an entity that a list refused.
  //
  //   kw::Collection places;
  //   store.List2EntitieswithSearchandSeek(file, u"NODE", id, u"nm 'Outlet'", ids, name, names,
  //                                        true, false, true, places);
  //   places.item(u"B2").to_int32();  // 62
  void List2EntitieswithSearchandSeek(const String& FileName, const String& Token,
                                      String& Searchtoken, const String& SearchValue,
                                      Collection& IDList, String& Nametoken, Collection& NameList,
                                      const Boolean& IDlistCLear, const Boolean& IDAllowDuplicate,
                                      const Boolean& blnSeek, Collection& lstSeek,
                                      Variant& ThirdToken = left_out(),
                                      Variant& Thirdlist = left_out()) const;

  // A new identifier.

  // The largest numeric identifier of the type plus one, "1" when there is none above -999. Upper-
  // cases `Token`. Fractions round, halves to the even neighbour; error 6 beyond 32 bits. Nothing
  // is reserved: the same call gives the same identifier until an entity is written.
  //
  //   kw::String type = u"node";
  //   store.GetNewID(file, type);  // u"1": no identifier is a number; type is u"NODE"
  String GetNewID(const String& FileName, String& Token) const;

  // Tables that may be too long for memory.

  // As GetTableEntry, but a table of more rows than the buffer size is written to the file
  // `tempfile`, `IsTableStored` becomes true, and `Table` gets one empty element. An entity without
  // rows leaves elements 1 to the buffer size, all empty. The result counts all rows, wherever they
  // are. Also the errors of writing `tempfile`: 70 when it is the file itself, 76, 61 and 57.
  //
  //   store.SetBufferSize(1);
  //   kw::Boolean stored;
  //   store.GetTableEntryUsingTempFile(file, u"", u"node", u"B2", rows, u"rows.txt", stored);  // 2
  //   // stored is true; rows.txt holds both rows, the first one with its blank
  std::int32_t GetTableEntryUsingTempFile(const String& FileName, const String& TableString,
                                          const String& Token, std::u16string_view ID,
                                          Array<String>& Table, const String& tempfile,
                                          Boolean& IsTableStored) const;

  // As WriteEntitywithTable; with `isTableStoredinfile` the lines of the file `TableStoredinfile`,
  // read as those of an entity file, stand in the place of "??", with a CR LF behind each. That
  // file stays. Errors: 53 when there is none, 70 when it has the temporary file's name.
  //
  //   store.WriteEntitywithTableUsingTempFile(file, u"node", u"B4", u"id 'B4' TBLE ?? tble", rows,
  //                                           u"rows.txt", stored);
  //   // adds NODE id 'B4' TBLE 0.0 1.5 <
  //   //      1.0 2.5 <
  //   //      tble node
  void WriteEntitywithTableUsingTempFile(String& FileName, const String& Token, const String& ID,
                                         const String& Entity, const Array<String>& Table,
                                         const String& TableStoredinfile,
                                         const Boolean& isTableStoredinfile) const;

  // Deleting one entity.

  // Removes what WriteEntity would replace: all entities of the type for an `ID` of "". Without any
  // the file is only written anew.
  //
  //   store.DeleteEntity(file, u"node", u"B1");
  //   store.GetEntity(file, u"node", u"B1");  // u""
  void DeleteEntity(String& FileName, const String& Token, const String& ID) const;

  // Entities into a collection, and a collection back into the file.

  // The entities of the type whose identifiers are keys of `colWithIDs`, in a new collection
  // `colBuffer` under these identifiers; the first one of each. The identifier is the token behind
  // the first token "id", in any line. Items of `colWithIDs` must have a text form, what they hold
  // does not matter. True at the end of the file. A failure once the file is open is raised as
  // error 10001 with its own text; what was gathered by then stays in `colBuffer`.
  //
  //   const kw::Collection wanted = kw::Collection::create();
  //   wanted.add(u"", u"B1");
  //   wanted.add(u"", u"B9");
  //   kw::Collection found;
  //   store.GetEntitiesWithCollection(file, u"node", found, wanted);  // true
  //   found.count();                                                  // 1
  //   found.item(u"B1").text();                                       // u"id 'B1' nm 'Inlet' "
  Boolean GetEntitiesWithCollection(const String& FileName, const String& Token,
                                    Collection& colBuffer, const Collection& colWithIDs) const;

  // All entities of the type in a new collection `colBuffer`, without keys. True when the end of
  // the file was reached; after a failure on the way false, with what was gathered.
  //
  //   kw::Collection all;
  //   store.GetEntitiesIntoColl(file, u"node", all);  // true
  //   all.item(1).text();                             // u"id 'B1' nm 'Inlet' "
  Boolean GetEntitiesIntoColl(const String& FileName, const String& Token,
                              Collection& colBuffer) const;

  // Puts each item of the collection in the place of the first entity of the type whose identifier
  // is its key, and adds the others at the end, in their order. The identifier is the second token
  // of a first line or, where that is "id", the third. Items that were written in the place of an
  // entity are removed from the collection, and the variable is cleared. An empty collection, or
  // none, leaves all as it is. True; false after any failure, which changes no file and is not
  // raised.
  //
  //   kw::Collection bodies = kw::Collection::create();
  //   bodies.add(u"id 'B1' nm 'Intake'", u"B1");
  //   bodies.add(u"id 'B5' nm 'Sump'", u"B5");
  //   store.WriteEntitiesFromCollection(file, u"node", bodies);  // true
  //   store.GetEntity(file, u"node", u"B1");                     // u"id 'B1' nm 'Intake' "
  Boolean WriteEntitiesFromCollection(String& FileName, const String& Token,
                                      Collection& colBufferKeyIsID) const;

  // Settings.

  // By how many elements arrays grow, and how many rows GetTableEntryUsingTempFile keeps; 5000 at
  // first; taken as it is, whatever the number. It holds for this object. Raises no error.
  void SetBufferSize(const std::int32_t& BufferSize);

  // One entity from a position.

  // As GetEntity for the item `itemToken`, when given, and from the byte at position `posSeek`,
  // from 1, when given. A position that is no number, or cannot be gone to, counts as 1; one
  // behind the file's end finds nothing. An `ID` equal to `recordToken` is an identifier like any
  // other here. Error 13 when `itemToken` has no text form.
  //
  //   store.GetEntityWithTokenAndSeek(file, u"node", u"inlet", u"nm");  // u"id 'B1' nm 'Inlet' "
  //   const kw::Variant behind_b1(62);
  //   store.GetEntityWithTokenAndSeek(file, u"node", u"inlet", u"nm", behind_b1);  // u""
  String GetEntityWithTokenAndSeek(const String& FileName, const String& recordToken,
                                   std::u16string_view ID,
                                   const Variant& itemToken = Variant::missing(),
                                   const Variant& posSeek = Variant::missing()) const;

  // Entities into a collection under their identifiers, or without their tables.

  // As GetEntitiesIntoColl; with `UseKey` each under the value of the item "id" on its first line,
  // the first one of each value only.
  //
  //   kw::Collection nodes;
  //   store.GetEntitiesIntoCollWithKey(file, u"node", nodes, true);  // true
  //   nodes.item(u"b1").text();                                      // u"id 'B1' nm 'Inlet' "
  Boolean GetEntitiesIntoCollWithKey(const String& FileName, const String& Token,
                                     Collection& colBuffer, const Boolean& UseKey = false) const;

  // As GetEntitiesWithCollection, without tables: nothing from TBLE to tble, where these do not
  // stand on the closing line. Also error 10001 when too little of the closing word is left behind
  // tble.
  //
  //   wanted.add(u"", u"B2");
  //   store.GetEntitiesWithoutTableWithCollection(file, u"node", found, wanted);  // true
  //   found.item(u"B2").text();  // u"id 'B2' nm 'Outlet' \r\n "
  Boolean GetEntitiesWithoutTableWithCollection(const String& FileName, const String& Token,
                                                Collection& colBuffer,
                                                const Collection& colWithIDs) const;

  // One entity by its type alone.

  // The first entity of the type, whatever its identifier; "" when there is none.
  //
  //   store.GetTokenEntity(file, u"node");  // u"id 'B1' nm 'Inlet' "
  String GetTokenEntity(const String& FileName, const String& Token) const;

  // Records.

  // The next record of the file that is open for reading under the number `iu`: the next line that
  // is neither a comment nor empty, trimmed, with blanks for tabs and no-break spaces. At the end
  // of the file the last line read, which is "" or a comment; "" when nothing was left to read.
  // Numbers are given by the host: kwutils/host.h has an example. Errors: 6 for a number that 16
  // bits do not hold, 52 when no file is open under it, 54 when it is not open for reading, 57.
  String GetRecord(const std::int32_t& iu) const;

  // Lists of parts of entities.

  // As List2EntitieswithSearch for the parts of entities of the type `MainToken` that stand between
  // the word `SubToken` and its lower-case form, on any line. Both words are taken as they stand:
  // give them in upper case.
  //
  //   kw::Collection pipes, pipe_names;
  //   store.SubList2EntitieswithSearch(file, u"LINK", u"PIPE", id, u"", pipes, name, pipe_names,
  //                                    true, false);
  //   pipes.count();                  // 2
  //   pipe_names.item(u"P2").text();  // u"Lower"
  void SubList2EntitieswithSearch(const String& FileName, const String& MainToken,
                                  const String& SubToken, String& Searchtoken,
                                  const String& SearchValue, Collection& IDList, String& Nametoken,
                                  Collection& NameList, const Boolean& IDlistCLear,
                                  const Boolean& IDAllowDuplicate) const;

  // All entities of a type, or all their identifiers.

  // All entities of the type as elements 1 to their number; element 0 is "". Any line outside a
  // block whose first word has six letters stands alone here. True when the end of the file was
  // reached; false after a failure on the way, with what was gathered. When the file cannot be
  // opened `Buffer` has bounds 0 to the buffer size. Errors: 9 when that is below 0, 10 when
  // `Buffer` is fixed or locked.
  //
  //   kw::Array<kw::String> entities;
  //   store.GetEntities(file, u"node", entities);  // true
  //   entities.upper();                            // 2
  //   entities.at(1);                              // u"id 'B1' nm 'Inlet' "
  Boolean GetEntities(const String& FileName, const String& Token, Array<String>& Buffer) const;

  // The entities of the type without their tables in a new collection `colBuffer` under their
  // identifiers (the token behind the first token "id"), "" included; the first one of each. True.
  // Error 5 when too little of the closing word is left behind tble.
  //
  //   store.GetEntitiesWithoutTableIntoColl(file, u"node", all);  // true
  //   all.item(u"B2").text();                                     // u"id 'B2' nm 'Outlet' \r\n "
  Boolean GetEntitiesWithoutTableIntoColl(const String& FileName, const String& Token,
                                          Collection& colBuffer) const;

  // Whether `Coll` holds an item under the key `ID` that has a text form. Raises no error.
  //
  //   store.IsIdInCollection(all, u"b2");  // true
  //   store.IsIdInCollection(all, u"B9");  // false
  Boolean IsIdInCollection(const Collection& Coll, std::u16string_view ID) const;

  // The identifiers of all entities of the type in a new collection `colBuffer`, each once, under
  // itself. True. Error 5 as above.
  //
  //   store.GetEntityIDsIntoColl(file, u"node", ids);  // true
  //   ids.item(2).text();                              // u"B2"
  Boolean GetEntityIDsIntoColl(const String& FileName, const String& Token,
                               Collection& colBuffer) const;

  // Identifiers and values in use.

  // `SearchID` when it is not blank and no entity of the type has it as its identifier, in any
  // case; else what GetNewID gives. Upper-cases `Token`.
  //
  //   store.CheckOrCreateNewID(file, type, u"B3");  // u"B3"
  //   store.CheckOrCreateNewID(file, type, u"b1");  // u"1"
  String CheckOrCreateNewID(const String& FileName, String& Token,
                            const String& SearchID = String()) const;

  // Counts in the entities of the type, outside their tables: how often the item `SearchKey` has
  // the value `SearchValue` (`lKeyUsed`) and the item `IDKey` the value `IDValue` (`lIDUsed`), to
  // the letter and without quotes, and how many entities hold both (`lRecordPresent`). All three
  // begin at 0. Error 5 when too little of the closing word is left behind tble.
  //
  //   std::int32_t both, named, identified;
  //   store.SearchKeyAndIDInFile(file, u"node", u"nm", u"Inlet", u"id", u"B2", both, named,
  //                              identified);
  //   // both is 0; named is 1; identified is 1
  void SearchKeyAndIDInFile(const String& FileName, const String& Token, const String& SearchKey,
                            const String& SearchValue, const String& IDKey, const String& IDValue,
                            std::int32_t& lRecordPresent, std::int32_t& lKeyUsed,
                            std::int32_t& lIDUsed) const;

  // Deleting many entities.

  // Removes the first entity of the type for each key of `collIDs`; identifiers as in
  // WriteEntitiesFromCollection. Keys that were met are removed from the collection, and the
  // variable is cleared. An empty collection, or none, leaves all as it is.
  //
  //   kw::Collection retired = kw::Collection::create();
  //   retired.add(u"", u"B1");
  //   store.DeleteEntitiesFromCollection(file, u"node", retired);
  //   store.GetEntity(file, u"node", u"B1");  // u""
  void DeleteEntitiesFromCollection(String& FileName, const String& Token,
                                    Collection& collIDs) const;

  // All entities of a type without their tables.

  // As GetEntities, without tables; only the first line of the file may stand alone.
  //
  //   store.GetEntitiesWithoutTable(file, u"node", entities);  // true
  //   entities.at(2);                                          // u"id 'B2' nm 'Outlet' \r\n "
  Boolean GetEntitiesWithoutTable(const String& FileName, const String& Token,
                                  Array<String>& aBuffer) const;

 private:
  // What an optional variable stands for that nobody passed.
  static Variant& left_out();

  bool IsKeyInCollection(const Collection& coll, std::u16string_view key) const noexcept;
  bool ReadEntitiesIntoColl(std::u16string_view FileName, std::u16string_view Token,
                            Collection& colBuffer, bool UseKey) const;
  String FindEntity(std::u16string_view FileName, std::u16string_view recordToken,
                    std::u16string_view ID, const Variant& itemToken, const Variant& posSeek) const;

  clsFileUtil oFileUtil;
  clsParse oParse;
  std::int32_t lBufferSize = 5000;
  std::array<tCommentSpec, 4> aCommentSpecs;
};

}  // namespace kw
