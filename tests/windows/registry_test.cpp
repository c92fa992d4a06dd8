#include "platform/registry.h"

#include <gtest/gtest.h>

#include "platform/windows/system.h"

namespace kw::platform {
namespace {

constexpr GUID kOwnClass = {0x3F0C5B3E, 0x52D4, 0x4A5B, {0x8B, 1, 2, 3, 4, 5, 6, 7}};
constexpr RegisteredClass kClasses[] = {{"kwUtilsTest.Sample", kOwnClass, "A sample"}};
const std::u16string kClassKey =
    u"Software\\Classes\\CLSID\\{3F0C5B3E-52D4-4A5B-8B01-020304050607}";
const std::u16string kNameKey = u"Software\\Classes\\kwUtilsTest.Sample";

// The text of a registry value; "(none)" where there is none.
std::u16string value(HKEY root, const std::u16string& key, const char16_t* name = u"") {
  char16_t text[300] = {};
  DWORD size = sizeof text;
  const LONG code = RegGetValueW(root, wide(key), wide(name), RRF_RT_REG_SZ, nullptr, text, &size);
  return code == ERROR_SUCCESS ? text : u"(none)";
}

class WindowsRegistry : public ::testing::TestWithParam<RegistryScope> {
 protected:
  ~WindowsRegistry() override { unregister_classes(kClasses, GetParam()); }
  static HKEY root() {
    return GetParam() == RegistryScope::user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
  }
};

TEST_P(WindowsRegistry, HoldsWhatTheSystemLooksFor) {
  register_classes(kClasses, "C:\\kw\\Sample.dll", GetParam());
  EXPECT_EQ(value(root(), kClassKey), u"A sample");
  EXPECT_EQ(value(root(), kClassKey + u"\\InprocServer32"), u"C:\\kw\\Sample.dll");
  EXPECT_EQ(value(root(), kClassKey + u"\\InprocServer32", u"ThreadingModel"), u"Apartment");
  EXPECT_EQ(value(root(), kClassKey + u"\\ProgID"), u"kwUtilsTest.Sample");
  EXPECT_EQ(value(root(), kNameKey + u"\\CLSID"), u"{3F0C5B3E-52D4-4A5B-8B01-020304050607}");
}

TEST_P(WindowsRegistry, HoldsNothingAfterRemoval) {
  register_classes(kClasses, "C:\\kw\\Sample.dll", GetParam());
  unregister_classes(kClasses, GetParam());
  EXPECT_EQ(value(root(), kClassKey), u"(none)");
  EXPECT_EQ(value(root(), kNameKey), u"(none)");
  unregister_classes(kClasses, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Scopes, WindowsRegistry,
                         ::testing::Values(RegistryScope::user, RegistryScope::system));

TEST(WindowsRegistryLookUp, FindsClassesOfTheSystemByNameAndIdentifier) {
  EXPECT_FALSE(find_class_server(u"kwUtilsTest.Nothing"));
  const auto by_name = find_class_server(u"Scripting.Dictionary");
  ASSERT_TRUE(by_name);
  const auto by_id = find_class_server(u"{EE09B103-97E0-11CF-978F-00A02463E06F}");
  ASSERT_TRUE(by_id);
  EXPECT_EQ(by_name->class_id, by_id->class_id);
}

}  // namespace
}  // namespace kw::platform
