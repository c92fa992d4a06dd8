#include "files/path_test.h"

namespace kw {
namespace {

using UnMakeAbsolute = testing::PathTest;

TEST_F(UnMakeAbsolute, TakesTheFolderOfTheIndicatorOut) {
  EXPECT_EQ(relative(u"C:\\Work\\Data\\X.txt", u"C:\\work\\"), u"data\\x.txt");
  EXPECT_EQ(relative(u"C:\\Work\\Data\\X.txt", u"C:\\work\\model.ini"), u"data\\x.txt");
}

TEST_F(UnMakeAbsolute, LeavesABackslashWithTheCurrentDirectory) {
  EXPECT_EQ(relative(u"C:\\Work\\Data\\X.txt"), u"\\data\\x.txt");
}

TEST_F(UnMakeAbsolute, TakesTheBaseOutWhereverItOccurs) {
  EXPECT_EQ(relative(u"a\\b\\xa\\b\\y", u"a\\b\\"), u"xy");
}

TEST_F(UnMakeAbsolute, TheBaseAloneLeavesNothing) {
  EXPECT_EQ(relative(u"C:\\WORK"), u"");
  EXPECT_EQ(relative(u""), u"");
}

TEST_F(UnMakeAbsolute, KeepsAnotherDrive) {
  EXPECT_EQ(relative(u"D:\\Other\\y.txt"), u"d:\\other\\y.txt");
  EXPECT_EQ(host.drive, u'C');
}

TEST_F(UnMakeAbsolute, DropsTheCurrentDrive) {
  EXPECT_EQ(relative(u"c:\\Other\\y.txt"), u"\\other\\y.txt");
  EXPECT_EQ(host.drive, u'C');
}

TEST_F(UnMakeAbsolute, ComparesWithTheDriveOfTheIndicatorAndStaysThere) {
  EXPECT_EQ(relative(u"D:\\Other\\y.txt", u"d:\\proj\\model.ini"), u"\\other\\y.txt");
  EXPECT_EQ(host.drive, u'D');
}

TEST_F(UnMakeAbsolute, DoesNotNormaliseWhereTheIndicatorHasNoDrive) {
  EXPECT_EQ(relative(u"D:\\a\\\\b\\..\\c", u"\\proj\\model.ini"), u"d:\\a\\\\b\\..\\c");
  EXPECT_EQ(host.drive, u'C');
}

TEST_F(UnMakeAbsolute, NormalisesTheRest) {
  EXPECT_EQ(relative(u"a\\\\b\\.\\c\\..\\d"), u"a\\b\\d");
}

TEST_F(UnMakeAbsolute, AFirstColonNotOnPosition2IsIllegal) {
  EXPECT_EQ(relative(u"Ab:c"), u"");
  EXPECT_EQ(host.messages, Messages{u"Illegal path 'Ab:c', a colon may only occur on position 2"});
}

TEST_F(UnMakeAbsolute, ASecondColonIsTaken) {
  EXPECT_EQ(relative(u"D:a:b"), u"d:a:b");
  EXPECT_EQ(host.messages, Messages());
}

TEST_F(UnMakeAbsolute, AnEmptyPathEndsWithAnEmptyBaseToo) { EXPECT_EQ(relative(u"", u"C:"), u""); }

TEST_F(UnMakeAbsolute, ResolvesVeryManyParents) {
  std::u16string path = u"aa";
  for (int i = 0; i < 10000; ++i) path += u"\\aa\\..";
  EXPECT_EQ(relative(path + u"\\x"), u"aa\\x");
}

}  // namespace
}  // namespace kw
