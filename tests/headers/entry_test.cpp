// The examples of clsDataEdtUtils.h and clsAPIUtil.h, with controls and a host of the test's own.
#include "entry/fake_control.h"
#include "headers/example_values.h"
#include "kwutils/clsAPIUtil.h"
#include "kwutils/clsDataEdtUtils.h"
#include "kwutils/clsStringUtil.h"
#include "kwutils/collection.h"
#include "kwutils/host.h"

namespace kw {
namespace {

struct EntryExamples : ::testing::Test {
  EntryExamples() {
    HostFunctions host;
    host.screen_size = [](void*, float* width, float* height) KW_STDCALL {
      *width = 15360;
      *height = 11520;
    };
    host.user_name = [](void*) KW_STDCALL { return SysAllocString(u"jdoe"); };
    set_host(host);
  }
  ~EntryExamples() override { set_host(HostFunctions()); }

  kw::clsDataEdtUtils entry;
};

TEST_F(EntryExamples, Keys) {
  std::int16_t key = u'.';
  entry.CheckInteger(key, 0, u"12", 10, 0);
  EXPECT_EQ(key, 0);
  key = u'.';
  entry.CheckReal(key, 0, u"12", 10, 0);
  EXPECT_EQ(key, 46);
  entry.CheckReal(key, 0, u"1.2", 10, 0);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(entry.CheckRealChange(u"12-5"), u"-125");
  EXPECT_EQ(entry.CheckRealChange(u"007"), u"07");
  EXPECT_EQ(entry.ValiText(u'n', u"YN", true), 110);
  EXPECT_EQ(entry.ValiText(u'x', u"YN", true), 0);
}

TEST_F(EntryExamples, TextBoxes) {
  testing::FakeControl control = testing::make_text_box(u"12");
  const Object box = control.object();
  entry.FocusMe(box);
  EXPECT_EQ(box.get(u"SelLength").to_int32(), 2);
  entry.IncreDecreInteger(box, 33, 0);
  EXPECT_EQ(box.get(u"Text").text(), u" 22");
}

TEST_F(EntryExamples, Forms) {
  testing::FakeControl control({u"WindowState", u"DrawStyle", u"DrawMode", u"ScaleMode",
                                u"DrawWidth", u"ScaleHeight", u"line"});
  const Object form = control.object();
  EXPECT_EQ(entry.CheckRez(1024, 768), true);
  entry.Dither(form);
  EXPECT_EQ(form.get(u"DrawMode").to_int32(), 13);
}

TEST_F(EntryExamples, OptionGroups) {
  testing::FakeControl first({u"Value", u"Index"}), second({u"Value", u"Index"});
  first.set(u"Value", Boolean(false));
  first.set(u"Index", Variant(std::int16_t{1}));
  second.set(u"Value", Boolean(true));
  second.set(u"Index", Variant(std::int16_t{2}));
  const Collection group = Collection::create();
  group.add(Variant(first.object()));
  group.add(Variant(second.object()));
  const Variant options(group.object());
  EXPECT_EQ(entry.OptionTrueIs(options), 2);
}

TEST_F(EntryExamples, UserName) {
  kw::clsAPIUtil api;
  EXPECT_EQ(kw::clsStringUtil().StrNoNull(api.NTDomainUserName()), u"JDOE");
}

}  // namespace
}  // namespace kw
