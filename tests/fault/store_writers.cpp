#include "fault/store_writers.h"

#include <ostream>

#include "kwutils/clsFileReadWrite.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;

constexpr std::size_t kMoreThanABuffer = 150000;

String token() { return String(u"node"); }

String file(const TemporaryFolder& folder) { return String(folder.name("a.ent")); }

void write(const TemporaryFolder& folder, std::u16string_view id, std::u16string_view entity) {
  String name = file(folder);
  clsFileReadWrite().WriteEntity(name, token(), String(id), String(entity));
}

Array<String> many_rows() {
  std::vector<String> rows;
  for (int i = 0; i < 300; ++i) {
    rows.emplace_back(std::u16string(500, u'1') + u" 2 <\r\n");
  }
  return Array<String>::of(1, std::move(rows));
}

bool write_table(const TemporaryFolder& folder) {
  String name = file(folder);
  clsFileReadWrite().WriteEntitywithTable(name, token(), String(u"7"),
                                          String(u"id '7' TBLE ?? tble"), many_rows());
  return true;
}

bool write_stored_table(const TemporaryFolder& folder) {
  String name = file(folder);
  clsFileReadWrite().WriteEntitywithTableUsingTempFile(
      name, token(), String(u"7"), String(u"id '7' TBLE ?? tble"), Array<String>(),
      String(folder.name("rows.txt")), true);
  return true;
}

bool remove(const TemporaryFolder& folder) {
  String name = file(folder);
  clsFileReadWrite().DeleteEntity(name, token(), String(u"7"));
  return true;
}

Collection collection_of(std::initializer_list<std::u16string_view> keys) {
  Collection items = Collection::create();
  for (const auto key : keys) items.add(Variant(u"id '7' nm 'new'"), key);
  return items;
}

bool remove_several(const TemporaryFolder& folder) {
  String name = file(folder);
  Collection ids = collection_of({u"1", u"7", u"none"});
  clsFileReadWrite().DeleteEntitiesFromCollection(name, token(), ids);
  return true;
}

bool write_several(const TemporaryFolder& folder) {
  String name = file(folder);
  Collection entities = collection_of({u"1", u"7", u"new one"});
  const bool done = clsFileReadWrite().WriteEntitiesFromCollection(name, token(), entities);
  // What could not be written must still be there for the caller.
  return done || !entities;
}

std::string file_with_a_long_block() {
  std::string block = "LINK id '7' x\r\n";
  const std::string line =
      "; between\r\n  a line of another block" + std::string(500, '.') + "\r\n";
  while (block.size() < 2 * kMoreThanABuffer) block += line;
  return block + "link\r\nNODE id '7' a node\r\n";
}

bool replace(const TemporaryFolder& folder) {
  write(folder, u"7", u"id '7' nm 'new'");
  return true;
}

bool append(const TemporaryFolder& folder) {
  write(folder, u"new one", u"id 'new one'");
  return true;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const StoreWriter& writer) {
  return out << writer.name;
}

std::string large_entity_file() {
  std::string text = "HEADER 1\r\n; a comment\r\n\r\n";
  for (int i = 0; text.size() < kMoreThanABuffer; ++i) {
    const std::string id = std::to_string(i);
    text += "NODE id '" + id + "' nm 'node " + id + "' node\r\n\tLINK id '" + id + "' TBLE\r\n" +
            std::string(1500, '1') + " 2 <\r\n/* no\r\nrow */\r\ntble link\r\n";
  }
  return text;
}

std::vector<StoreWriter> store_writers() {
  const std::string large = large_entity_file();
  return {{"Replace", large, replace},
          {"Append", large, append},
          {"Create", "", append},
          {"ReplaceBehindALongBlock", file_with_a_long_block(), replace},
          {"WriteTable", large, write_table},
          {"WriteStoredTable", large, write_stored_table},
          {"Delete", large, remove},
          {"DeleteSeveral", large, remove_several},
          {"WriteSeveral", large, write_several}};
}

}  // namespace kw::fault
