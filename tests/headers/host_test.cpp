// The examples of host.h and create_object.h, on the built library. Its classes are registered in a
// folder of the test's own.
#include "kwutils/host.h"

#include <dlfcn.h>

#include "headers/example_folder.h"
#include "headers/example_values.h"
#include "kwutils/create_object.h"
#include "kwutils/variant.h"
#include "platform/class_loader.h"
#include "server/class_list.h"

namespace kw {
namespace {

struct Window {
  float screen_width = 15360;
  float screen_height = 11520;
};

class HostExamples : public ExampleFolder {
 protected:
  HostExamples() {
    HostFunctions host;
    host.context = &folder_name_;
    host.registry_folder = [](void* context) KW_STDCALL {
      return SysAllocString(static_cast<std::u16string*>(context)->c_str());
    };
    set_host(host);
    set_host(factory, host);
    reinterpret_cast<HRESULT (*)()>(
        dlsym(dlopen(library().c_str(), RTLD_NOW), "DllRegisterServer"))();
  }
  ~HostExamples() override {
    set_host(HostFunctions());
    set_host(factory, HostFunctions());
    factory.Release();
  }

  IUnknown& factory = *platform::load_class_factory(library(), parse_id());

 private:
  static std::string library() { return std::string(KW_BIN) + "/libkwutils.so"; }
  static GUID parse_id() { return server::find_class(u"clsParse")->description().class_id; }

  std::u16string folder_name_ = folder_.path().u16string();
};

TEST_F(HostExamples, Functions) {
  Window window;
  kw::HostFunctions host;
  host.context = &window;
  host.screen_size = [](void* context, float* width, float* height) KW_STDCALL {
    *width = static_cast<Window*>(context)->screen_width;
    *height = static_cast<Window*>(context)->screen_height;
  };
  const std::int32_t wide = 1024, high = 768;
  const Variant width(wide), height(high);
  const kw::Object entry = kw::create_object(u"kwUtils.clsDataEdtUtils");
  EXPECT_EQ(kw::set_host(factory, host), true);
  kw::set_host(host);
  EXPECT_EQ(entry.call(u"CheckRez", {&width, &height}).to_boolean(), true);
}

TEST_F(HostExamples, Objects) {
  kw::Object parser = kw::create_object(u"kwUtils.clsParse");
  const kw::Variant line(u"id 'B 2'"), second(2);
  EXPECT_EQ(parser.call(u"ParseToken", {&line, &second}).text(), u"B 2");
}

TEST_F(HostExamples, FileNumbers) {
  folder_.write("net.dat", "; pumps\r\nNODE id 'B1' nm 'Inlet' node\r\n");
  const kw::Object store = kw::create_object(u"kwUtils.clsFileReadWrite");
  void* answer = nullptr;
  factory.QueryInterface(kw::kIidHostDoor, &answer);
  auto* door = static_cast<kw::IHostDoor*>(answer);
  const kw::String name = u"net.dat";
  const kw::Variant number(1);
  EXPECT_EQ(door->OpenFile(1, name.get(), kw::NumberedFileMode::input), 0);
  EXPECT_EQ(store.call(u"GetRecord", {&number}).text(), u"NODE id 'B1' nm 'Inlet' node");
  EXPECT_EQ(door->CloseFile(1), 0);
  door->Release();
}

TEST_F(HostExamples, ErrorsOfFileNumbers) {
  void* answer = nullptr;
  factory.QueryInterface(kw::kIidHostDoor, &answer);
  auto* door = static_cast<kw::IHostDoor*>(answer);
  const auto failure = [](std::int32_t number) { return status::kRunTimeError + number; };
  const String name = u"net.dat", folder = u".", nowhere = u"none/net.dat";
  EXPECT_EQ(door->OpenFile(1, name.get(), NumberedFileMode::input), failure(53));
  EXPECT_EQ(door->OpenFile(0, name.get(), NumberedFileMode::output), failure(52));
  EXPECT_EQ(door->OpenFile(-1, name.get(), NumberedFileMode::output), failure(52));
  EXPECT_EQ(door->OpenFile(1, nullptr, NumberedFileMode::output), failure(52));
  EXPECT_EQ(door->OpenFile(1, folder.get(), NumberedFileMode::input), failure(70));
  EXPECT_EQ(door->OpenFile(1, nowhere.get(), NumberedFileMode::output), failure(76));
  EXPECT_EQ(door->CloseFile(1), failure(52));
  EXPECT_EQ(door->OpenFile(32767, name.get(), NumberedFileMode::output), 0);
  EXPECT_EQ(door->OpenFile(32767, name.get(), NumberedFileMode::input), failure(52));
  EXPECT_EQ(door->CloseFile(32767), 0);
  EXPECT_EQ(folder_.read("net.dat"), "");
  door->Release();
}

}  // namespace
}  // namespace kw
