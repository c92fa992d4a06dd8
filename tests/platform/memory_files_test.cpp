#include "platform/memory_files.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::number_of;

std::string read_all(InputFile& file) {
  std::string content;
  char block[3];
  while (const std::size_t size = file.read(block, sizeof block)) content.append(block, size);
  return content;
}

TEST(MemoryFiles, ReadsWhatWasPut) {
  MemoryFiles files;
  files.put(u"a.ent", "0123456789");
  const auto file = files.open_input(u"a.ent");
  EXPECT_EQ(file->size_hint(), 10);
  EXPECT_EQ(read_all(*file), "0123456789");
  file->seek(8);
  EXPECT_EQ(read_all(*file), "89");
  file->seek(100);
  EXPECT_EQ(read_all(*file), "");
  EXPECT_EQ(number_of([&] { file->seek(-1); }), 63);
}

TEST(MemoryFiles, KeepsWhatIsWritten) {
  MemoryFiles files;
  files.put(u"out", "old");
  const auto file = files.create_output(u"out");
  file->write("new");
  file->write(" content");
  file->close();
  EXPECT_EQ(files.content(u"out"), "new content");
}

TEST(MemoryFiles, AMissingFileIsReported) {
  MemoryFiles files;
  EXPECT_EQ(number_of([&] { files.open_input(u"gone"); }), 53);
  EXPECT_EQ(number_of([&] { files.check_attributes(u"gone"); }), 53);
  EXPECT_EQ(number_of([&] { files.remove(u"gone"); }), 53);
  EXPECT_FALSE(files.exists(u"gone"));
}

TEST(MemoryFiles, ImpossibleNamesAreBadNames) {
  MemoryFiles files;
  const std::u16string with_nul(u"a\0b", 3);
  EXPECT_EQ(number_of([&] { files.open_input(u""); }), 52);
  EXPECT_EQ(number_of([&] { files.create_output(with_nul); }), 52);
  EXPECT_EQ(number_of([&] { files.create_replacement(with_nul, u"a"); }), 52);
  EXPECT_EQ(number_of([&] { files.create_replacement(u"a", u""); }), 52);
  EXPECT_FALSE(files.exists(with_nul));
}

TEST(MemoryFiles, RemovesAFileThatSomebodyReadsOn) {
  MemoryFiles files;
  files.put(u"a.ent", "content");
  const auto file = files.open_input(u"a.ent");
  files.remove(u"a.ent");
  EXPECT_FALSE(files.exists(u"a.ent"));
  EXPECT_EQ(read_all(*file), "content");
}

TEST(MemoryFiles, AReplacementTakesTheTargetsPlaceAtOnce) {
  MemoryFiles files;
  files.put(u"a.ent", "old");
  const auto file = files.create_replacement(u"a.tmp", u"a.ent");
  file->write("new");
  EXPECT_EQ(files.content(u"a.ent"), "old");
  EXPECT_TRUE(files.exists(u"a.tmp"));
  file->replace();
  EXPECT_EQ(files.content(u"a.ent"), "new");
  EXPECT_EQ(files.count(), 1u);
}

TEST(MemoryFiles, ADroppedReplacementLeavesNoTrace) {
  MemoryFiles files;
  files.put(u"a.ent", "old");
  files.create_replacement(u"a.tmp", u"a.ent")->write("new");
  EXPECT_EQ(files.content(u"a.ent"), "old");
  EXPECT_EQ(files.count(), 1u);
}

TEST(MemoryFiles, ASecondReplacementIsTurnedAway) {
  MemoryFiles files;
  const auto first = files.create_replacement(u"a.tmp", u"a.ent");
  EXPECT_EQ(number_of([&] { files.create_replacement(u"a.tmp", u"a.ent"); }), 70);
  first->replace();
  files.create_replacement(u"a.tmp", u"a.ent");
}

TEST(MemoryFiles, TheTargetIsNeverItsOwnTemporaryFile) {
  MemoryFiles files;
  EXPECT_EQ(number_of([&] { files.create_replacement(u"a", u"a"); }), 5);
}

}  // namespace
}  // namespace kw::platform
