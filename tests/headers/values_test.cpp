// The examples of the headers of the values: array.h, boolean.h, collection.h, error.h, object.h,
// string.h, variant.h.
#include <filesystem>

#include "entry/fake_control.h"
#include "headers/example_folder.h"
#include "headers/example_values.h"
#include "kwutils/boolean.h"
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/collection.h"

namespace kw {
namespace {

TEST(ValueExamples, Arrays) {
  Array<String> fields;
  EXPECT_EQ(number_of([&] { fields.upper(); }), 9);
  fields.redim(0, 2);
  fields.at(1) = u"pump";
  EXPECT_EQ(number_of([&] { fields.at(3); }), 9);
  fields.redim_preserve(0, 3);
  EXPECT_EQ(fields.upper(), 3);
  EXPECT_EQ(listed(fields), ", pump, , ");
  for (String& field : fields.elements()) field = u"x";
  EXPECT_EQ(listed(fields), "x, x, x, x");
}

TEST(ValueExamples, Booleans) {
  Boolean found = true;
  EXPECT_EQ(found.bits(), -1);
  EXPECT_EQ(Boolean::from_bits(1), true);
  EXPECT_EQ(Boolean::from_bits(1).exactly_true(), false);
}

TEST(ValueExamples, Collections) {
  Collection pumps = Collection::create();
  pumps.add(u"id 'P1'", u"P1");
  pumps.add(u"id 'P2'");
  EXPECT_EQ(pumps.item(u"p1").text(), u"id 'P1'");
  pumps.remove(u"P1");
  EXPECT_EQ(pumps.item(1).text(), u"id 'P2'");
  EXPECT_EQ(pumps.count(), 1);
  EXPECT_EQ(number_of([&] { pumps.remove(u"P1"); }), 5);
  EXPECT_EQ(number_of([&] { pumps.remove(2); }), 9);
  EXPECT_EQ(number_of([] { Collection().remove(1); }), 91);
}

// The collection of a caller, which answers to some of the names only, or with something else.
TEST(ValueExamples, ForeignCollections) {
  testing::FakeControl control({u"Count"});
  const Collection foreign{control.object()};
  control.set(u"Count", u"many");
  EXPECT_EQ(number_of([&] { foreign.count(); }), 13);
  control.set(u"Count", Variant(1e10));
  EXPECT_EQ(number_of([&] { foreign.count(); }), 6);
  control.set(u"Count", u"3");
  EXPECT_EQ(foreign.count(), 3);
  EXPECT_EQ(number_of([&] { foreign.remove(1); }), 438);
}

TEST(ValueExamples, AnUnknownKeepsNoReferenceItGaveAway) {
  testing::FakeControl control({});
  IUnknown* const object = &control;
  object->AddRef();
  IUnknown* const members = Unknown::attach(object).release();
  EXPECT_EQ(members, object);
  EXPECT_EQ(control.references, 1);
  { const Unknown owner = Unknown::attach(members); }
  EXPECT_EQ(control.references, 0);
  Unknown::attach(nullptr);
}

TEST(ValueExamples, Objects) {
  testing::FakeControl control = testing::make_text_box(u"");
  IDispatch* const text_box = &control;
  Object box = Object::share(text_box);
  box.put(u"Text", u"12.5");
  EXPECT_EQ(box.get(u"Text").to_double(), 12.5);
  EXPECT_EQ(box.get_default().text(), u"12.5");
  EXPECT_EQ(box.answers(u"Caption"), false);
  EXPECT_EQ(number_of([&] { box.get(u"Caption"); }), 438);
  EXPECT_EQ(number_of([&] { box.put(u"Caption", u""); }), 438);
  EXPECT_EQ(number_of([&] { box.members(); }), 438);
  EXPECT_EQ(number_of([] { Object().get_default(); }), 91);
  EXPECT_EQ(number_of([] { Object().members(); }), 91);
}

TEST(ValueExamples, MembersOfObjects) {
  const Variant item(u"pump"), key(u"P1");
  const Object list = Collection::create().object();
  list.call(u"Add", {&item, &key});
  EXPECT_EQ(list.get(u"Count").to_int32(), 1);
  EXPECT_EQ(number_of([&] { list.call(u"Add", {&item, &key}); }), 457);
  Variant member;
  auto members = list.members();
  EXPECT_EQ(members.next(member), true);
  EXPECT_EQ(member.text(), u"pump");
  EXPECT_EQ(members.next(member), false);
  EXPECT_EQ(member.text(), u"pump");
}

TEST(ValueExamples, Texts) {
  String name = u"Inlet";
  String other = name.copy();
  std::u16string_view text = name;
  EXPECT_EQ(text, u"Inlet");
  EXPECT_EQ(String::concat(name, u" ", other), u"Inlet Inlet");
  EXPECT_EQ(String::from_utf8("caf\xC3\xA9"), u"caf\u00E9");
  EXPECT_EQ(name.size(), 5);
}

TEST(ValueExamples, Variants) {
  Variant separator = String(u";");
  EXPECT_EQ(separator.is_text(), true);
  Variant left_out = Variant::missing();
  EXPECT_EQ(Variant(2.5).to_int32(), 2);
  EXPECT_EQ(Variant(u" 1e3 ").to_int16(), 1000);
  EXPECT_EQ(Variant(Boolean(true)).text(), u"True");
  EXPECT_EQ(left_out.is_missing(), true);
  EXPECT_EQ(left_out.is_empty(), false);
  Variant variable;
  variable.store(String(u"pump"));
  EXPECT_EQ(variable.text(), u"pump");
}

TEST(ValueExamples, ConversionsOfVariants) {
  EXPECT_EQ(Variant(0.5f).text(), u"0.5");
  EXPECT_EQ(Variant(1e20).text(), u"1E+20");
  EXPECT_EQ(Variant().text(), u"");
  EXPECT_EQ(Variant(Boolean(true)).to_int16(), -1);
  EXPECT_EQ(Variant().to_double(), 0);
  EXPECT_EQ(Variant(u"true").to_boolean(), true);
  EXPECT_EQ(Variant(u"0").to_boolean(), false);
  EXPECT_EQ(Variant(0.1).to_boolean(), true);
  EXPECT_EQ(Variant().to_boolean(), false);
  EXPECT_EQ(number_of([] { Variant(u"12 m").to_single(); }), 13);
  EXPECT_EQ(number_of([] { Variant(40000).to_int16(); }), 6);
  EXPECT_EQ(number_of([] { Variant::missing().text(); }), 13);
  EXPECT_EQ(number_of([] { Variant(Object(nullptr)).text(); }), 91);
  EXPECT_EQ(number_of([] { Variant(1).to_object(); }), 13);
}

TEST(ValueExamples, StoringIntoAVariableOfAnotherKindIsAnError) {
  std::int32_t number = 42;
  Variant reference;
  reference.address()->vt = kVtI4 | kVtByRef;
  reference.address()->plVal = &number;
  EXPECT_EQ(number_of([&] { reference.store(String(u"pump")); }), 13);
  EXPECT_EQ(number_of([&] { reference.store(Object(nullptr)); }), 13);
  EXPECT_EQ(number, 42);
}

struct ErrorExamples : ExampleFolder {};

TEST_F(ErrorExamples, TheTextNamesTheFile) {
  try {
    kw::clsFileReadWrite().GetEntity(u"none.dat", u"node", u"B1");
    FAIL();
  } catch (const kw::Error& error) {
    EXPECT_EQ(error.text(), "File not found: 'none.dat'");
  }
}

}  // namespace
}  // namespace kw
