#include "files/path_test.h"

namespace kw {
namespace {

using MakeAbsolute = testing::PathTest;

TEST_F(MakeAbsolute, TakesAPathFromTheCurrentDirectory) {
  EXPECT_EQ(absolute(u"data\\in.txt"), u"C:\\work\\data\\in.txt");
}

TEST_F(MakeAbsolute, AddsNoSecondBackslashToARoot) {
  host.directories[u'C'] = u"C:\\";
  EXPECT_EQ(absolute(u"in.txt"), u"C:\\in.txt");
}

TEST_F(MakeAbsolute, TakesAPathFromTheFolderOfTheIndicator) {
  EXPECT_EQ(absolute(u"data\\in.txt", u"D:\\proj\\model.ini"), u"D:\\proj\\data\\in.txt");
  EXPECT_EQ(absolute(u"in.txt", u"D:\\proj\\"), u"D:\\proj\\in.txt");
}

TEST_F(MakeAbsolute, AnIndicatorWithoutFolderIsARoot) {
  EXPECT_EQ(absolute(u"in.txt", u"model.ini"), u"\\in.txt");
  EXPECT_EQ(absolute(u"in.txt", u""), u"\\in.txt");
  EXPECT_EQ(absolute(u"in.txt", Variant()), u"\\in.txt");
}

TEST_F(MakeAbsolute, TakesTheDriveAloneForAPathFromTheRoot) {
  EXPECT_EQ(absolute(u"\\tmp\\x"), u"C:\\tmp\\x");
  EXPECT_EQ(absolute(u"\\tmp\\x", u"D:\\proj\\model.ini"), u"D:\\tmp\\x");
}

TEST_F(MakeAbsolute, TakesAPathWithADriveFromThatDrivesDirectory) {
  EXPECT_EQ(absolute(u"D:x.txt"), u"D:\\old\\data\\x.txt");
  EXPECT_EQ(absolute(u"D:x.txt", u"C:\\proj\\model.ini"), u"D:\\old\\data\\x.txt");
  EXPECT_EQ(absolute(u"D:"), u"D:\\old\\data\\");
  EXPECT_EQ(host.drive, u'C');
}

TEST_F(MakeAbsolute, KeepsAPathThatIsAbsolute) {
  EXPECT_EQ(absolute(u"D:\\a\\b"), u"D:\\a\\b");
  EXPECT_EQ(absolute(u"D:\\\\a\\\\\\b"), u"D:\\a\\b");
}

TEST_F(MakeAbsolute, FillsThePlaceholders) {
  EXPECT_EQ(absolute(u"$PATH$\\..\\cfg.ini"), u"C:\\Program\\cfg.ini");
  EXPECT_EQ(absolute(u"$PATH$\\$EXENAME$.ini"), u"C:\\Program\\kw\\kwutils.ini");
  EXPECT_EQ(absolute(u"$path$"), u"C:\\work\\$path$");
}

TEST_F(MakeAbsolute, TakesReferencesToTheSameFolderOut) {
  EXPECT_EQ(absolute(u"C:\\a\\.\\.\\b"), u"C:\\a\\b");
  EXPECT_EQ(absolute(u".\\b"), u"C:\\work\\b");
}

TEST_F(MakeAbsolute, NothingStaysNothing) {
  EXPECT_EQ(absolute(u""), u"");
  EXPECT_EQ(host.messages, Messages());
}

TEST_F(MakeAbsolute, ANetworkPathGivesNothing) {
  EXPECT_EQ(absolute(u"\\\\server\\share\\a\\..\\b"), u"");
  EXPECT_EQ(absolute(u"\\\\server:\\a"), u"");
  EXPECT_EQ(host.messages, Messages());
}

TEST_F(MakeAbsolute, ANetworkPathStillTellsOfItsIllegalReferences) {
  EXPECT_EQ(absolute(u"\\\\\\..\\x"), u"");
  EXPECT_EQ(host.messages, Messages{u"Illegal directory reference '\\\\\\..\\x'"});
}

TEST_F(MakeAbsolute, AColonAnywhereButOnPosition2IsIllegal) {
  EXPECT_EQ(absolute(u"C:\\a:b"), u"");
  EXPECT_EQ(absolute(u":a"), u"");
  EXPECT_EQ(absolute(u"::"), u"");
  EXPECT_EQ(absolute(u"ab:c"), u"");
  ASSERT_EQ(host.messages.size(), 4u);
  EXPECT_EQ(host.messages[0], u"Illegal path 'C:\\a:b', a colon may only occur on position 2");
}

TEST_F(MakeAbsolute, AMessageShowsThePathAsItWasGiven) {
  EXPECT_EQ(absolute(u"$EXENAME$:x"), u"");
  EXPECT_EQ(host.messages,
            Messages{u"Illegal path '$EXENAME$:x', a colon may only occur on position 2"});
}

TEST_F(MakeAbsolute, AReferenceAboveTheRootIsToldAndDamagesThePath) {
  EXPECT_EQ(absolute(u"C:\\..\\x"), u"C\\x");
  EXPECT_EQ(host.messages, Messages{u"Illegal directory reference 'C:\\..\\x'"});
}

TEST_F(MakeAbsolute, ChangesNoArgument) {
  const String path = u"data";
  const Variant indicator(u"D:\\proj\\model.ini");
  util.MakeAbsolute(path, indicator);
  EXPECT_EQ(path.view(), u"data");
  EXPECT_EQ(indicator.text().view(), u"D:\\proj\\model.ini");
}

}  // namespace
}  // namespace kw
