#include "floors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "entity_data.h"
#include "entity_text.h"
#include "test_folder.h"

namespace kw::bench {
namespace {

std::string narrow(const Text& text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.length; ++i) bytes += static_cast<char>(text.characters[i]);
  return bytes;
}

std::vector<std::string> narrow(const std::vector<Text>& texts) {
  std::vector<std::string> all;
  for (const Text& text : texts) all.push_back(narrow(text));
  return all;
}

using Strings = std::vector<std::string>;

constexpr std::string_view kSample =
    "; a comment\r\n"
    "NODE id 'N1' nm 'Inlet 1' x 1.5 node\r\n"
    "LINK id 'N2' nm 'Main 2'\r\n"
    "    ln 120.5 link\r\n"
    "\r\n"
    "  NODE id 'N3' nm 'Outlet 3' TBLE\r\n"
    "  0.0 1.5 <\r\n"
    "  1.0 2.5 <\r\n"
    "    tble node\r\n";

TEST(FloorRead, SeesEveryLineThatIsNotEmpty) {
  const TestFolder folder;
  EXPECT_EQ(floor_read(folder.write("a.dat", kSample)).lines, 8u);
}

TEST(FloorRead, SeesALastLineWithoutEnd) {
  const TestFolder folder;
  EXPECT_EQ(floor_read(folder.write("a.dat", "one\r\ntwo")).lines, 2u);
}

TEST(FloorRead, SeesLinesThatReadsCutInTwo) {
  const TestFolder folder;
  std::string text;
  for (int i = 0; i < 100'000; ++i) text += "line " + std::to_string(i) + " of the text\r\n";
  EXPECT_EQ(floor_read(folder.write("a.dat", text)).lines, 100'000u);
}

TEST(FloorRead, SeesOneLineOfManyReads) {
  const TestFolder folder;
  EXPECT_EQ(floor_read(folder.write("a.dat", std::string(5'000'000, 'x'))).lines, 1u);
}

TEST(FloorRead, ThrowsWhenTheFileIsMissing) {
  const TestFolder folder;
  EXPECT_THROW(floor_read(folder.path() / "none.dat"), std::system_error);
}

TEST(FloorRewrite, LeavesTheLinesTrimmed) {
  const TestFolder folder;
  const auto file = folder.write("a.dat", "  one two \r\n\r\n\tthree\nfour");
  floor_rewrite(file, Flush::yes);
  EXPECT_EQ(contents(file), "one two\r\nthree\r\nfour\r\n");
}

TEST(FloorRewrite, WritesALineThatIsLongerThanItsBuffer) {
  const TestFolder folder;
  const std::string line(3'000'000, 'x');
  const auto file = folder.write("a.dat", "one\r\n" + line + "\r\ntwo\r\n");
  floor_rewrite(file, Flush::no);
  EXPECT_EQ(contents(file), "one\r\n" + line + "\r\ntwo\r\n");
}

TEST(FloorRewrite, KeepsAGeneratedFileButForItsBlanks) {
  const TestFolder folder;
  const EntityFile file = make_entity_file(folder.path(), 20'000);
  const Seen before = floor_rewrite(file.path, Flush::no);
  const Seen after = floor_read(file.path);
  EXPECT_EQ(after.lines, before.lines);
  EXPECT_EQ(after.checksum, before.checksum);
}

TEST(FloorDeliver, JoinsTheLinesOfAnEntity) {
  const TestFolder folder;
  const auto file = folder.write("a.dat", kSample);
  EXPECT_EQ(narrow(floor_deliver(file, "NODE", Values::entities).values),
            (Strings{"id 'N1' nm 'Inlet 1' x 1.5 ",
                     "id 'N3' nm 'Outlet 3' TBLE\r\n0.0 1.5 <\r\n1.0 2.5 <\r\ntble "}));
  EXPECT_EQ(narrow(floor_deliver(file, "LINK", Values::entities).values),
            (Strings{"id 'N2' nm 'Main 2'\r\nln 120.5 "}));
}

TEST(FloorDeliver, KeysEntitiesByIdentifier) {
  const TestFolder folder;
  const auto file = folder.write("a.dat", kSample);
  const Delivered delivered = floor_deliver(file, "NODE", Values::keyed_entities);
  EXPECT_EQ(delivered.keys.at(u"N3"), 1u);
  EXPECT_EQ(delivered.keys.size(), 2u);
}

TEST(FloorDeliver, HandsOutIdentifiersAndNames) {
  const TestFolder folder;
  const auto file = folder.write("a.dat", kSample);
  const Delivered delivered = floor_deliver(file, "NODE", Values::ids_and_names);
  EXPECT_EQ(narrow(delivered.values), (Strings{"N1", "N3"}));
  EXPECT_EQ(narrow(delivered.names), (Strings{"Inlet 1", "Outlet 3"}));
  EXPECT_EQ(delivered.name_keys.at(u"N1"), 0u);
}

TEST(FloorDeliver, HandsOutTheRowsOfATable) {
  const TestFolder folder;
  const auto file = folder.write("a.dat", kSample);
  EXPECT_EQ(narrow(floor_deliver(file, "NODE", Values::rows).values),
            (Strings{"0.0 1.5 <\r\n", "1.0 2.5 <\r\n"}));
}

TEST(FloorDeliver, FindsEveryEntityOfAGeneratedFile) {
  const TestFolder folder;
  const EntityFile file = make_entity_file(folder.path(), 20'000);
  const Delivered delivered = floor_deliver(file.path, kHalfType, Values::ids_and_names);
  Strings ids;
  Strings names;
  for (std::size_t number = 1; number <= file.entities; ++number) {
    if (entity_type(number) != kHalfType) continue;
    ids.push_back(entity_id(number));
    names.push_back(entity_name(number));
  }
  EXPECT_EQ(narrow(delivered.values), ids);
  EXPECT_EQ(narrow(delivered.names), names);
}

TEST(FloorSpillRows, WritesTheRowsTrimmed) {
  const TestFolder folder;
  const auto second = folder.path() / "rows";
  EXPECT_EQ(floor_spill_rows(folder.write("a.dat", kSample), "NODE", second), 2u);
  EXPECT_EQ(contents(second), "0.0 1.5 <\r\n1.0 2.5 <\r\n");
}

}  // namespace
}  // namespace kw::bench
