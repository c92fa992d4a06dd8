// The examples of clsFileUtil.h, on a host whose drives have the directories that they name.
#include "files/fake_drives.h"
#include "headers/example_values.h"
#include "kwutils/clsFileUtil.h"

namespace kw {
namespace {

struct PathExamples : ::testing::Test {
  PathExamples() { drives.directories = {{u'C', uR"(C:\work)"}, {u'D', uR"(D:\old)"}}; }

  testing::FakeDrives drives;
  kw::clsFileUtil util;
};

TEST_F(PathExamples, AgainstAFile) {
  const kw::Variant model(u"D:\\proj\\model.ini");
  EXPECT_EQ(util.MakeAbsolute(u"data\\in.txt", model), u"D:\\proj\\data\\in.txt");
  EXPECT_EQ(util.UnMakeAbsolute(u"D:\\proj\\data\\in.txt", model), u"data\\in.txt");
}

TEST_F(PathExamples, AbsolutePaths) {
  EXPECT_EQ(util.MakeAbsolute(uR"(data\in.txt)"), uR"(C:\work\data\in.txt)");
  EXPECT_EQ(util.MakeAbsolute(uR"(\tmp\x)"), uR"(C:\tmp\x)");
  EXPECT_EQ(util.MakeAbsolute(uR"(D:x.txt)"), uR"(D:\old\x.txt)");
}

TEST_F(PathExamples, RelativePaths) {
  const Variant indicator(uR"(C:\work\)");
  EXPECT_EQ(util.UnMakeAbsolute(uR"(C:\Work\Data\X.txt)", indicator), uR"(data\x.txt)");
  drives.directories[u'C'] = uR"(C:\Work)";
  EXPECT_EQ(util.UnMakeAbsolute(uR"(C:\Work\Data\X.txt)"), uR"(\data\x.txt)");
  EXPECT_EQ(util.UnMakeAbsolute(uR"(D:\Other\y.txt)"), uR"(d:\other\y.txt)");
}

TEST_F(PathExamples, PartsOfNames) {
  kw::String path, name, ext;
  util.SplitFileName(u"C:\\a\\b.tar.gz", path, name, ext);
  EXPECT_EQ(path, u"C:\\a\\");
  EXPECT_EQ(name, u"b");
  EXPECT_EQ(ext, u"tar.gz");
  kw::String file = u" C:\\a\\b.txt ";
  EXPECT_EQ(util.StripFileFrom(file).text(), u"C:\\a");
  EXPECT_EQ(file, u"C:\\a\\b.txt");
  EXPECT_EQ(util.StripPathFrom(u"C:\\a\\b.txt"), u"b.txt");
}

TEST_F(PathExamples, Files) {
  EXPECT_EQ(util.FileNameExists(u"C:\\none.txt"), false);
  EXPECT_EQ(util.FileOpener(u"C:\\a\\b.txt", kw::READ_FILE), kw::NO_FILE);
}

}  // namespace
}  // namespace kw
