// The user, the screen and the profile functions as the system has them.
#include <gtest/gtest.h>

#include "base/code_page.h"
#include "kwutils/host.h"
#include "platform/profile.h"
#include "platform/screen.h"
#include "platform/temporary_folder.h"
#include "platform/user.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

TEST(WindowsUser, IsTheOneThatTheSystemNames) {
  char name[257];
  DWORD size = sizeof name;
  ASSERT_TRUE(GetUserNameA(name, &size));
  EXPECT_EQ(user_name(), widen({name, size - 1}));
}

TEST(WindowsScreen, IsMeasuredInTwips) {
  const ScreenSize size = screen_size();
  const HDC screen = GetDC(nullptr);
  const int inch = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  ASSERT_GT(inch, 0);
  EXPECT_FLOAT_EQ(size.width, static_cast<float>(GetSystemMetrics(SM_CXSCREEN)) * 1440 /
                                  static_cast<float>(inch));
  EXPECT_GT(size.height, 0);
}

TEST(WindowsProfile, ReadsAndWritesThroughTheSystem) {
  const kw::testing::TemporaryFolder folder;
  const std::string file = narrow(folder.name("a.ini"));
  EXPECT_TRUE(profile::write_string("s", "k", "'v'", file));
  EXPECT_EQ(profile::get_string("s", "k", "d", 1024, file), "v");
  EXPECT_EQ(profile::get_string("s", "none", "d", 1024, file), "d");
  EXPECT_TRUE(profile::write_string("s", "n", "0x10", file));
  EXPECT_EQ(profile::get_int("s", "n", 7, file), 16);
  EXPECT_TRUE(profile::write_string("s", "k", std::nullopt, file));
  EXPECT_EQ(profile::get_string("s", "k", "d", 1024, file), "d");
  EXPECT_FALSE(profile::write_string("s", "k", "v", narrow(folder.name("none\\a.ini"))));
}

TEST(WindowsProfile, BareNamesLieWhereTheHostSays) {
  static const kw::testing::TemporaryFolder* place;
  const kw::testing::TemporaryFolder folder;
  place = &folder;
  HostFunctions host;
  host.windows_directory = [](void*) KW_STDCALL {
    const std::u16string path = place->path().u16string();
    return SysAllocStringLen(path.data(), static_cast<std::uint32_t>(path.size()));
  };
  set_host(host);
  EXPECT_TRUE(profile::write_string("s", "k", "v", "bare.ini"));
  EXPECT_EQ(profile::windows_directory(), folder.path().u16string());
  set_host(HostFunctions());
  EXPECT_EQ(folder.read("bare.ini"), "[s]\r\nk=v\r\n");
}

}  // namespace
}  // namespace kw::platform
