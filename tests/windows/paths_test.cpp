#include "platform/paths.h"

#include <gtest/gtest.h>

#include "platform/temporary_folder.h"
#include "platform/windows/system.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::number_of;
using kw::testing::TemporaryFolder;

// Comes back to the drive and folder where it began.
class WindowsPaths : public ::testing::Test {
 protected:
  WindowsPaths() : before_(std::filesystem::current_path()) {}
  ~WindowsPaths() override { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_;
};

TEST_F(WindowsPaths, TellTheCurrentDriveAndDirectory) {
  std::filesystem::current_path("C:\\windows");
  EXPECT_EQ(current_drive(), u'C');
  EXPECT_EQ(current_directory(), u"C:\\windows");
  std::filesystem::current_path("C:\\");
  EXPECT_EQ(current_directory(), u"C:\\");
}

TEST_F(WindowsPaths, EveryDriveKeepsItsOwnDirectory) {
  std::filesystem::current_path("Z:\\");
  std::filesystem::current_path("C:\\windows\\system32");
  change_drive(u'z');
  EXPECT_EQ(current_drive(), u'Z');
  change_drive(u'C');
  EXPECT_EQ(current_directory(), u"C:\\windows\\system32");
}

TEST_F(WindowsPaths, ADriveThatIsNotThereIsRefused) {
  const std::u16string before = current_directory();
  EXPECT_EQ(number_of([] { change_drive(u'Q'); }), 68);
  EXPECT_EQ(number_of([] { change_drive(u'1'); }), 68);
  EXPECT_EQ(current_directory(), before);
}

TEST_F(WindowsPaths, TellWhereTheModuleLies) {
  EXPECT_EQ(module_name(), u"test_windows_services");
  EXPECT_TRUE(std::filesystem::exists(module_directory() + u"\\" + module_name() + u".exe"));
  EXPECT_NE(module_directory().back(), u'\\');
}

}  // namespace
}  // namespace kw::platform
