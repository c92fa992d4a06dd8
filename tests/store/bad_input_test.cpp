// Files and names that nobody should have: each gives its result or its error, and no byte of a
// file is lost.
#include <gtest/gtest.h>

#include <filesystem>

#include "kwutils/clsFileReadWrite.h"
#include "platform/temporary_folder.h"
#include "support/expect_error.h"

namespace kw::store {
namespace {

using kw::testing::number_of;
using kw::testing::TemporaryFolder;
using namespace std::string_literals;

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kLongLine = 20'000'000;  // the sanitizers take their time
#else
constexpr std::size_t kLongLine = 100'000'000;
#endif

class BadInput : public ::testing::Test {
 protected:
  void write_entity(std::u16string_view id, std::u16string_view entity) {
    String name(file_.view());
    store_.WriteEntity(name, node_, String(id), String(entity));
  }

  std::int32_t count() {
    Collection entities;
    EXPECT_TRUE(store_.GetEntitiesIntoColl(file_, node_, entities));
    return entities.count();
  }

  // The errors of a reader, a reader into a list, a writer.
  void expect_errors(std::u16string_view name, std::int32_t reading, std::int32_t writing) {
    const String file(name);
    String written(name), token(u"node");
    Collection found;
    Array<String> rows;
    EXPECT_EQ(number_of([&] { store_.GetEntity(file, node_, u"1"); }), reading);
    EXPECT_EQ(number_of([&] { store_.GetEntityWithoutTable(file, node_, u"1"); }), reading);
    EXPECT_EQ(number_of([&] { store_.GetEntities(file, node_, rows); }), reading);
    EXPECT_EQ(number_of([&] { store_.GetTableEntry(file, node_, node_, u"1", rows); }), reading);
    EXPECT_EQ(number_of([&] { store_.GetEntityIDsIntoColl(file, node_, found); }), reading);
    EXPECT_EQ(number_of([&] { store_.GetNewID(file, token); }), reading);
    EXPECT_EQ(number_of([&] { store_.WriteEntity(written, node_, node_, node_); }), writing);
    EXPECT_EQ(number_of([&] { store_.DeleteEntity(written, node_, node_); }), writing);
    EXPECT_EQ(number_of([&] { store_.WriteRtnFile(file); }), 0);
  }

  TemporaryFolder folder_;
  const String file_{folder_.name("a.ent")};
  const String node_{u"node"};
  clsFileReadWrite store_;
};

TEST_F(BadInput, ALongLineIsRead) {
  folder_.write("a.ent",
                "NODE id '1' " + std::string(kLongLine, 'x') + " node\r\nNODE id '2' node\r\n");
  EXPECT_EQ(store_.GetEntity(file_, node_, u"2").view(), u"id '2' ");
  EXPECT_EQ(store_.GetEntity(file_, node_, u"1").size(), kLongLine + 8);
}

TEST_F(BadInput, ALongLineIsKeptByAWriter) {
  const std::string line = "LINK " + std::string(kLongLine, 'x') + " link\r\n";
  folder_.write("a.ent", line);
  write_entity(u"2", u"id '2'");
  EXPECT_TRUE(folder_.read("a.ent") == line + "NODE id '2' node\r\n");
}

TEST_F(BadInput, AnIdentifierOfAMegabyteIsAnIdentifier) {
  const std::u16string id(1'000'000, u'7');
  write_entity(id, u"id '" + id + u"' a");
  write_entity(id, u"id '" + id + u"' b");
  EXPECT_EQ(count(), 1);
  EXPECT_EQ(store_.GetEntity(file_, node_, id).size(), id.size() + 8);
  Collection ids;
  EXPECT_TRUE(store_.GetEntityIDsIntoColl(file_, node_, ids));
  EXPECT_TRUE(store_.IsIdInCollection(ids, id));
  String token(u"node");
  EXPECT_EQ(number_of([&] { store_.GetNewID(file_, token); }), 6);
}

TEST_F(BadInput, OnlyCarriageReturnsAreEmptyLines) {
  folder_.write("a.ent", std::string(1'000'000, '\r'));
  EXPECT_EQ(count(), 0);
  write_entity(u"1", u"id '1'");
  EXPECT_EQ(folder_.read("a.ent"), "NODE id '1' node\r\n");
}

TEST_F(BadInput, NulBytesAreText) {
  const std::string nuls = std::string(1'000'000, '\0') + "\r\n";
  folder_.write("a.ent", nuls + "NODE id '1' node\r\n");
  EXPECT_EQ(count(), 0);  // a block of another type, which never closes
  write_entity(u"2", std::u16string_view(u"id '2' \0", 8));
  EXPECT_EQ(folder_.read("a.ent"), nuls + "NODE id '1' node\r\nNODE id '2' \0 node\r\n"s);
}

TEST_F(BadInput, ManyOpenBlocksAreOneBlock) {
  std::string text;
  for (int i = 0; i < 100'000; ++i) text += "LINK a\r\n";
  folder_.write("a.ent", text);
  EXPECT_EQ(count(), 0);
  write_entity(u"1", u"id '1'");
  EXPECT_EQ(folder_.read("a.ent"), text + "NODE id '1' node\r\n");
}

TEST_F(BadInput, AFolderIsForbidden) {
  std::filesystem::create_directory(folder_ / "sub.ent");
  expect_errors(folder_.name("sub.ent"), 70, 70);
  EXPECT_TRUE(std::filesystem::is_directory(folder_ / "sub.ent"));
}

TEST_F(BadInput, AMissingFolderIsAMissingPath) {
  expect_errors(folder_.name("none/a.ent"), 76, 76);
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(BadInput, AFileAsFolderIsAMissingPath) {
  folder_.write("a.ent", "kept");
  expect_errors(folder_.name("a.ent/b.ent"), 76, 76);
  EXPECT_EQ(folder_.read("a.ent"), "kept");
}

TEST_F(BadInput, ANameWithANulIsImpossible) {
  folder_.write("a.ent", "kept");
  expect_errors(std::u16string(file_.view()) + std::u16string(1, u'\0') + u".ent", 52, 52);
  EXPECT_EQ(folder_.read("a.ent"), "kept");
}

TEST_F(BadInput, ANameTooLongIsImpossible) {
  expect_errors(folder_.name(std::string(5000, 'n') + ".ent"), 52, 52);
}

TEST_F(BadInput, AnEmptyNameIsImpossible) { expect_errors(u"", 52, 5); }

TEST_F(BadInput, AFileThatOpensButCannotBeReadIsAnInputError) {
  const String memory(u"/proc/self/mem");
  EXPECT_EQ(number_of([&] { store_.GetEntity(memory, node_, u"1"); }), 57);
  EXPECT_EQ(number_of([&] { store_.GetTokenEntity(memory, node_); }), 57);
  Collection found, wanted;
  EXPECT_FALSE(store_.GetEntitiesIntoColl(memory, node_, found));
  EXPECT_EQ(number_of([&] { store_.GetEntitiesWithCollection(memory, node_, found, wanted); }),
            10001);
}

}  // namespace
}  // namespace kw::store
