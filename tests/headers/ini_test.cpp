// The examples of clsIni.h.
#include <fstream>

#include "entry/fake_control.h"
#include "headers/example_folder.h"
#include "headers/example_values.h"
#include "kwutils/clsIni.h"
#include "kwutils/host.h"

namespace kw {
namespace {

using IniExamples = ExampleFolder;

TEST_F(IniExamples, Values) {
  kw::clsIni ini;
  EXPECT_EQ(ini.WriteIni(u"Pump", u"Flow", u"12.5", u"plant.ini"), 1);
  kw::Variant flow = ini.GetIniAndCheck(u"Pump", u"Flow", u"Double", u"plant.ini");
  EXPECT_EQ(flow.to_double(), 12.5);
  EXPECT_EQ(ini.GetIni(u"Pump", u"Flow", u"0", u"plant.ini"), u"12.5");
  EXPECT_EQ(ini.GetIni(u"Pump", u"Head", u"0", u"plant.ini"), u"0");
  EXPECT_EQ(ini.GetIniAndCheck(u"Pump", u"Flow", u"long", u"plant.ini").to_int32(), 12);
  EXPECT_EQ(ini.GetIniAndCheck(u"Pump", u"Head", u"long", u"plant.ini", u"none").text(), u"none");
  EXPECT_EQ(ini.GetIniAndCheck(u"Pump", u"Flow", u"long", u"missing.ini", u"x").is_empty(), true);
  EXPECT_EQ(ini.GetInt(u"Pump", u"Flow", 7, u".\\plant.ini").to_int16(), 12);
  EXPECT_EQ(ini.GetInt(u"Pump", u"Head", 7, u".\\plant.ini").to_int16(), 7);
  EXPECT_EQ(ini.RemoveIniEntry(u"Pump", u"Flow", u"plant.ini"), 0);
  EXPECT_EQ(ini.GetIni(u"Pump", u"Flow", u"-", u"plant.ini"), u"-");
}

TEST_F(IniExamples, NativeNames) {
  const clsIni ini;
  const std::u16string native = folder_.name("plant.ini");
  EXPECT_EQ(ini.WriteIni(u"Pump", u"Flow", u"1", native), 1);
  EXPECT_EQ(folder_.list(), std::vector<std::string>{"plant.ini"});
  EXPECT_EQ(ini.GetIni(u"Pump", u"Flow", u"", native), u"1");
  EXPECT_EQ(ini.GetInt(u"Pump", u"Flow", 7, native).to_int16(), 1);
  std::filesystem::create_directory(folder_ / "conf");
  EXPECT_EQ(ini.WriteIni(u"Pump", u"Flow", u"2", u"conf/plant.ini"), 1);
  EXPECT_EQ(ini.GetInt(u"Pump", u"Flow", 7, u"conf/PLANT.ini").to_int16(), 2);
  folder_.write("PLANT.ini", "[Pump]\r\nFlow=3\r\n");
  EXPECT_EQ(ini.GetIni(u"Pump", u"Flow", u"", u"plant.ini"), u"1");
  EXPECT_EQ(ini.GetIni(u"Pump", u"Flow", u"", u"PLANT.ini"), u"3");
  EXPECT_EQ(ini.WriteIni(u"Pump", u"Flow", u"1", u"nofolder/plant.ini"), 0);
  EXPECT_EQ(ini.WriteIni(u"Pump", u"Flow", u"1", u"plan?.ini"), 0);
}

TEST_F(IniExamples, PlacementOfAWindow) {
  HostFunctions host;
  host.screen_size = [](void*, float* width, float* height) KW_STDCALL {
    *width = 15360;
    *height = 11520;
  };
  set_host(host);
  testing::FakeControl control({u"WindowState", u"Left", u"Top", u"Width", u"Height"});
  control.set(u"WindowState", Variant(0));
  control.set(u"Left", Variant(3840.0f));
  for (const char16_t* name : {u"Top", u"Width", u"Height"}) control.set(name, Variant(0.0f));
  const Variant form(control.object());
  kw::clsIni ini;
  ini.WritePrivateWindowinIni(form, u"main form", u"plant.ini");
  EXPECT_EQ(ini.GetIni(u"main form", u"Left", u"", u"plant.ini"), u"25");
  const auto error_of_form = [&](Variant other) {
    return number_of([&] { ini.WriteWindowInIni(other, u"plant.ini"); });
  };
  EXPECT_EQ(error_of_form(Variant(1)), 13);
  EXPECT_EQ(error_of_form(Variant(Object(nullptr))), 91);
  set_host(HostFunctions());
}

}  // namespace
}  // namespace kw
