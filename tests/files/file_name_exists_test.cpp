#include <gtest/gtest.h>

#include <string>

#include "kwutils/clsFileUtil.h"
#include "platform/temporary_folder.h"

namespace kw {
namespace {

struct FileNameExists : ::testing::Test {
  bool exists(const std::u16string& name) const { return util.FileNameExists(String(name)); }

  testing::TemporaryFolder folder;
  clsFileUtil util;
};

TEST_F(FileNameExists, IsTrueForAFileThatCanBeOpened) {
  folder.write("a.ent", "");
  EXPECT_TRUE(exists(folder.name("a.ent")));
  EXPECT_EQ(util.FileNameExists(String(folder.name("a.ent"))).bits(), -1);
}

TEST_F(FileNameExists, TestsTheNameWithoutTheBlanksAroundIt) {
  folder.write("a.ent", "");
  const String name(u"  " + folder.name("a.ent") + u" ");
  EXPECT_TRUE(util.FileNameExists(name));
  EXPECT_EQ(name.view(), u"  " + folder.name("a.ent") + u" ");
}

TEST_F(FileNameExists, IsFalseForAMissingFile) {
  EXPECT_FALSE(exists(folder.name("a.ent")));
  EXPECT_FALSE(exists(folder.name("none/a.ent")));
}

TEST_F(FileNameExists, IsFalseForADirectory) { EXPECT_FALSE(exists(folder.path().u16string())); }

TEST_F(FileNameExists, IsFalseForNoName) {
  EXPECT_FALSE(exists(u""));
  EXPECT_FALSE(exists(u"   "));
}

TEST_F(FileNameExists, IsFalseForAnImpossibleName) {
  EXPECT_FALSE(exists(std::u16string(u"a\0b", 3)));
  EXPECT_FALSE(exists(u"Q:\\a.ent"));
  EXPECT_FALSE(exists(std::u16string(100000, u'a')));
}

}  // namespace
}  // namespace kw
