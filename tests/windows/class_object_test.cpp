// Factories, lifetimes and type information of the built library.
#include <gtest/gtest.h>

#include "kwutils/error.h"
#include "kwutils/variant.h"
#include "platform/windows/system.h"
#include "windows/built_library.h"

namespace kw::testing {
namespace {

using CanUnload = HRESULT(KW_STDCALL*)();

CanUnload can_unload() {
  const FARPROC found =
      GetProcAddress(GetModuleHandleW(platform::wide(u"KWUTILS.DLL")), "DllCanUnloadNow");
  return reinterpret_cast<CanUnload>(reinterpret_cast<void*>(found));
}

TEST(BuiltLibrary, MakesEveryClass) {
  for (const frame::ClassTable* table : server::classes()) {
    const Object object = built_object(table->description().name);
    ASSERT_NE(object.pointer(), nullptr) << table->description().name;
    void* own = nullptr;
    EXPECT_EQ(object.pointer()->QueryInterface(table->description().interface_id, &own),
              status::kOk);
    static_cast<IUnknown*>(own)->Release();
  }
}

TEST(BuiltLibrary, RefusesUnknownClasses) {
  built_object("clsParse");
  EXPECT_THROW(platform::load_class_factory(KW_LIBRARY, kIidDispatch), Error);
}

TEST(BuiltLibrary, MayBeUnloadedWhenNothingIsHeld) {
  built_object("clsParse");
  ASSERT_NE(can_unload(), nullptr);
  EXPECT_EQ(can_unload()(), status::kOk);
  {
    const Object held = built_object("clsParse");
    EXPECT_EQ(can_unload()(), status::kFalse);
  }
  EXPECT_EQ(can_unload()(), status::kOk);
  IClassFactory* factory = built_factory("clsParse");
  factory->LockServer(1);
  EXPECT_EQ(can_unload()(), status::kFalse);
  factory->LockServer(0);
  factory->Release();
  EXPECT_EQ(can_unload()(), status::kOk);
}

// A client may let go of everything in any order.
TEST(BuiltLibrary, StaysAsLongAsACollectionOrItsWalkIsHeld) {
  Object parser = built_object("clsParse");
  Variant items;
  Variant reference;
  reference.address()->vt = kVtByRef | kVtVariant;
  reference.address()->pvarVal = items.address();
  const Variant text(u"A a b a"), token(u"a");
  parser.call(u"ParseTokenListIntoColl", {&text, &token, &reference});
  parser = Object();
  EXPECT_EQ(can_unload()(), status::kFalse);
  Object collection = items.to_object();
  items = Variant();
  IUnknown* walk = nullptr;
  constexpr std::size_t kNewEnum = 11;
  ASSERT_EQ(call_slot(collection, kNewEnum, &walk), status::kOk);
  collection = Object();
  EXPECT_EQ(can_unload()(), status::kFalse);
  walk->Release();
  EXPECT_EQ(can_unload()(), status::kOk);
}

TEST(BuiltLibrary, GivesTypeInformation) {
  const Object parser = built_object("clsParse");
  std::uint32_t count = 0;
  EXPECT_EQ(parser.pointer()->GetTypeInfoCount(&count), status::kOk);
  EXPECT_EQ(count, 1u);
  ITypeInfo* info = nullptr;
  EXPECT_EQ(parser.pointer()->GetTypeInfo(0, 0x409, &info), status::kOk);
  ASSERT_NE(info, nullptr);
  reinterpret_cast<IUnknown*>(info)->Release();
  EXPECT_EQ(parser.pointer()->GetTypeInfo(1, 0x409, &info), status::kBadIndex);
}

}  // namespace
}  // namespace kw::testing
