// What a replacement promises on every system.
#include "platform/replacements.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::number_of;
using ReplacementTest = kw::testing::Replacements;

TEST_F(ReplacementTest, PutsTheNewContentUnderTheName) {
  folder_.write("a.ent", "old");
  replace_with("new");
  EXPECT_EQ(folder_.read("a.ent"), "new");
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementTest, MakesAFileThatWasNotThere) {
  replace_with(std::string(500000, 'x'));
  EXPECT_EQ(folder_.read("a.ent"), std::string(500000, 'x'));
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementTest, WhatIsDroppedLeavesNoTrace) {
  folder_.write("a.ent", "old");
  start()->write(std::string(500000, 'x'));
  EXPECT_EQ(folder_.read("a.ent"), "old");
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementTest, NothingOfAnEarlierTemporaryFileRemains) {
  folder_.write("a.tmp", "left behind by a writer that was killed");
  replace_with("new");
  EXPECT_EQ(folder_.read("a.ent"), "new");
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementTest, ItsTemporaryFileIsToldFromOneThatLiesIdle) {
  EXPECT_FALSE(files().lies_idle(folder_.name("a.tmp")));
  const auto held = start();
  EXPECT_FALSE(files().lies_idle(folder_.name("a.tmp")));
  folder_.write("b.tmp", "somebody's own");
  EXPECT_TRUE(files().lies_idle(folder_.name("b.tmp")));
}

TEST_F(ReplacementTest, ASecondWriterIsTurnedAwayAtOnce) {
  const auto first = start();
  first->write("first");
  EXPECT_EQ(number_of([&] { start(); }), 70);
  first->replace();
  EXPECT_EQ(folder_.read("a.ent"), "first");
  replace_with("second");
  EXPECT_EQ(folder_.read("a.ent"), "second");
}

TEST_F(ReplacementTest, TheNameIsFreeAgainOnceItIsDropped) {
  start();
  replace_with("new");
  EXPECT_EQ(folder_.read("a.ent"), "new");
}

TEST_F(ReplacementTest, TheTargetIsNeverItsOwnTemporaryFile) {
  folder_.write("a.ent", "old");
  const auto name = folder_.name("a.ent");
  EXPECT_EQ(number_of([&] { files().create_replacement(name, name); }), 5);
  std::filesystem::create_hard_link(folder_ / "a.ent", folder_ / "hard");
  EXPECT_EQ(number_of([&] { files().create_replacement(folder_.name("hard"), name); }), 5);
  EXPECT_EQ(folder_.read("a.ent"), "old");
}

TEST_F(ReplacementTest, OneNameForBothIsRefusedAlsoWhereThereIsNoFileYet) {
  const auto name = folder_.name("a.tmp");
  EXPECT_EQ(number_of([&] { files().create_replacement(name, name); }), 5);
  EXPECT_TRUE(folder_.list().empty());
}

TEST_F(ReplacementTest, OnlyFilesAreReplaced) {
  std::filesystem::create_directory(folder_ / "a.ent");
  EXPECT_EQ(number_of([&] { start(); }), 70);
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(ReplacementTest, AFolderUnderTheTemporaryNameIsRefused) {
  std::filesystem::create_directory(folder_ / "a.tmp");
  EXPECT_EQ(number_of([&] { start(); }), 70);
  EXPECT_EQ(folder_.list(), Names{"a.tmp"});
}

TEST_F(ReplacementTest, AMissingFolderIsReported) {
  EXPECT_EQ(number_of([&] {
              files().create_replacement(folder_.name("gone/a.tmp"), folder_.name("gone/a.ent"));
            }),
            76);
}

}  // namespace
}  // namespace kw::platform
