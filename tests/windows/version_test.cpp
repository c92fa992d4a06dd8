#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/windows/system.h"

namespace kw::testing {
namespace {

class Version : public ::testing::Test {
 protected:
  Version() {
    const std::string file = KW_LIBRARY;
    block_.resize(GetFileVersionInfoSizeA(file.c_str(), nullptr));
    if (!block_.empty())
      GetFileVersionInfoA(file.c_str(), 0, static_cast<DWORD>(block_.size()), block_.data());
  }
  std::string text(const std::string& name) {
    void* value = nullptr;
    UINT size = 0;
    const std::string path = "\\StringFileInfo\\040904B0\\" + name;
    if (!VerQueryValueA(block_.data(), path.c_str(), &value, &size)) return "(none)";
    return static_cast<const char*>(value);
  }
  std::vector<char> block_;
};

TEST_F(Version, IsThatOfTheLibrary) {
  ASSERT_FALSE(block_.empty());
  EXPECT_EQ(text("FileVersion"), "1.02.0012");
  EXPECT_EQ(text("ProductVersion"), "1.02.0012");
  EXPECT_EQ(text("OriginalFilename"), "KWUTILS.DLL");
}

TEST_F(Version, HasItsFourNumbers) {
  ASSERT_FALSE(block_.empty());
  void* value = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueA(block_.data(), "\\", &value, &size));
  const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(value);
  EXPECT_EQ(fixed.dwFileVersionMS, 0x00010002u);
  EXPECT_EQ(fixed.dwFileVersionLS, 12u);
}

}  // namespace
}  // namespace kw::testing
