// Classes found by name from any process: registered by the built library, read back by the
// client's side. The registry lies in a folder of the test's own.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/unicode.h"
#include "kwutils/create_object.h"
#include "kwutils/host.h"
#include "kwutils/variant.h"
#include "platform/class_loader.h"
#include "platform/linux/class_file.h"
#include "server/class_list.h"
#include "server/registration.h"
#include "support/expect_error.h"

namespace kw {
namespace {

namespace fs = std::filesystem;

const std::string& library_path() {
  static const std::string path = (fs::path(KW_BIN) / "libkwutils.so").string();
  return path;
}

struct Registry : ::testing::Test {
  Registry() {
    folder = fs::temp_directory_path() / ("kwutils-registry-" + std::to_string(getpid()));
    fs::create_directories(folder);
    host.context = &folder;
    host.registry_folder = [](void* context) KW_STDCALL {
      return String::from_utf8(static_cast<fs::path*>(context)->native()).release();
    };
    set_host(host);
    set_host(*platform::load_class_factory(library_path(), parse_id()), host);
  }
  ~Registry() override {
    set_host(HostFunctions());
    set_host(*platform::load_class_factory(library_path(), parse_id()), HostFunctions());
    fs::remove_all(folder);
  }
  static GUID parse_id() { return server::find_class(u"clsParse")->description().class_id; }
  HRESULT call(const char* entry_point) {
    void* module = dlopen(library_path().c_str(), RTLD_NOW);
    return reinterpret_cast<HRESULT (*)()>(dlsym(module, entry_point))();
  }
  std::string content() const {
    std::ifstream input(folder / "classes.ini");
    return {std::istreambuf_iterator<char>(input), {}};
  }
  fs::path folder;
  HostFunctions host;
};

std::string error_text(std::u16string_view name) {
  const Error error = testing::error_of([&] { create_object(name); });
  EXPECT_EQ(error.number, ErrorNumber::cannot_create_object);
  return std::string(error.text());
}

TEST_F(Registry, EveryClassIsCreatedByNameAndByIdentifier) {
  ASSERT_EQ(call("DllRegisterServer"), status::kOk);
  for (const frame::ClassTable* table : server::classes()) {
    const std::string name = "kwutils." + std::string(table->description().name);
    const std::string member(table->description().methods.back().name);
    EXPECT_TRUE(create_object(from_utf8(name)).answers(from_utf8(member))) << name;
  }
  EXPECT_TRUE(create_object(u"{141AA2DD-593E-11D2-805F-00A0244600DF}").answers(u"parselist"));
  EXPECT_TRUE(create_object(u"141aa2dd-593e-11d2-805f-00a0244600df").answers(u"ParseList"));
}

TEST_F(Registry, UnregisteringRemovesEverything) {
  ASSERT_EQ(call("DllRegisterServer"), status::kOk);
  ASSERT_EQ(call("DllUnregisterServer"), status::kOk);
  EXPECT_FALSE(fs::exists(folder / "classes.ini"));
  EXPECT_EQ(error_text(u"kwUtils.clsParse"),
            "Cannot create object: class 'kwUtils.clsParse' is not registered");
}

TEST_F(Registry, OtherLibrariesClassesStay) {
  std::ofstream(folder / "classes.ini")
      << "[other.Thing]\nClass={00000000-0000-0000-0000-000000000001}\n"
         "Library=/opt/other.so\nHelp=\n";
  ASSERT_EQ(call("DllRegisterServer"), status::kOk);
  ASSERT_EQ(call("DllUnregisterServer"), status::kOk);
  EXPECT_NE(content().find("[other.Thing]"), std::string::npos);
  EXPECT_NE(error_text(u"other.thing").find("/opt/other.so"), std::string::npos);
}

TEST_F(Registry, RegisteringTwiceRecordsEachClassOnce) {
  ASSERT_EQ(call("DllRegisterServer"), status::kOk);
  const std::string once = content();
  ASSERT_EQ(call("DllRegisterServer"), status::kOk);
  EXPECT_EQ(content(), once);
}

TEST_F(Registry, AMissingFolderForTheRegistryIsMade) {
  folder /= "deeper";
  EXPECT_EQ(call("DllRegisterServer"), status::kOk);
  folder = folder.parent_path();
}

TEST(ClassFile, IgnoresWhatIsNoEntry) {
  const platform::ClassFile file("; a comment\n\nLibrary=lost\n[a.B]\nno equals sign\nClass=x\n");
  ASSERT_NE(file.find("A.b"), nullptr);
  EXPECT_EQ(file.find("A.b")->class_id, "x");
  EXPECT_EQ(file.find("a"), nullptr);
}

}  // namespace
}  // namespace kw
