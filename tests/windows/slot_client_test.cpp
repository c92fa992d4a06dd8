// The library as a compiled client meets it: slots, system texts and arrays, statuses.
#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "kwutils/array.h"
#include "kwutils/error.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"
#include "platform/windows/system.h"
#include "windows/built_library.h"

namespace kw::testing {
namespace {

constexpr std::size_t kFirst = 7;  // after the standard slots

TEST(SlotClient, ConsumesACallersText) {
  const Object parser = built_object("clsParse");
  BSTR text = SysAllocString(u"pump 12 rest");
  VARIANT separator = Variant::missing().release();
  BSTR item = nullptr;
  EXPECT_EQ(call_slot(parser, kFirst, &text, &separator, &item), status::kOk);
  EXPECT_EQ(std::u16string_view(item), u"pump");
  EXPECT_EQ(std::u16string_view(text), u"12 rest");
  SysFreeString(item);
  SysFreeString(text);
}

TEST(SlotClient, FillsACallersArray) {
  const Object parser = built_object("clsParse");
  BSTR text = SysAllocString(u"a,b,c"), separator = SysAllocString(u",");
  SAFEARRAY* fields = nullptr;
  std::int32_t count = 0;
  EXPECT_EQ(call_slot(parser, kFirst + 1, text, &separator, &fields, &count), status::kOk);
  EXPECT_EQ(count, 3);
  Array<String> array = Array<String>::attach(fields);
  EXPECT_EQ(array.at(2).view(), u"b");
  SysFreeString(text);
  SysFreeString(separator);
}

TEST(SlotClient, SortsASystemArrayInPlace) {
  const Object sorter = built_object("clsQSort");
  SAFEARRAY* numbers = SafeArrayCreateVector(kVtI4, -1, 3);
  void* data = nullptr;
  SafeArrayAccessData(numbers, &data);
  auto* values = static_cast<std::int32_t*>(data);
  values[0] = 3, values[1] = 1, values[2] = 2;
  SafeArrayUnaccessData(numbers);
  VARIANT_BOOL descending = kVariantFalse, result = kVariantFalse;
  EXPECT_EQ(call_slot(sorter, kFirst + 6, &numbers, &descending, &result), status::kOk);
  EXPECT_EQ(result, kVariantTrue);
  EXPECT_EQ(values[0], 1);
  EXPECT_EQ(values[2], 3);
  SafeArrayDestroy(numbers);
}

TEST(SlotClient, GetsAStatusForNullPointers) {
  const Object parser = built_object("clsParse");
  BSTR text = SysAllocString(u"a"), item = nullptr;
  BSTR* const no_text = nullptr;
  VARIANT* const left_out = nullptr;
  EXPECT_EQ(call_slot(parser, kFirst, no_text, left_out, &item), status::kPointer);
  EXPECT_EQ(call_slot(parser, kFirst, &text, left_out, static_cast<BSTR*>(nullptr)),
            status::kPointer);
  EXPECT_EQ(call_slot(parser, kFirst, &text, left_out, &item), status::kOk);
  SysFreeString(item);
  SysFreeString(text);
}

TEST(SlotClient, GetsErrorsWithSourceAndDescription) {
  const Object store = built_object("clsFileReadWrite");
  BSTR file = SysAllocString(u"no such folder\\a.ent"), token = SysAllocString(u"NODE");
  BSTR id = SysAllocString(u"1"), text = nullptr;
  EXPECT_EQ(call_slot(store, kFirst, &file, &token, id, &text), status::kRunTimeError + 76);
  IErrorInfo* info = nullptr;
  ASSERT_EQ(GetErrorInfo(0, &info), status::kOk);
  BSTR source = nullptr;
  EXPECT_EQ(info->GetSource(&source), status::kOk);
  EXPECT_EQ(std::u16string_view(source), u"kwUtils.clsFileReadWrite");
  info->Release();
  for (const BSTR one : {source, file, token, id}) SysFreeString(one);
}

TEST(SlotClient, IsRefusedOnAnotherThread) {
  const Object texts = built_object("clsStringUtil");
  HRESULT answer = 0;
  std::thread([&] {
    BSTR text = SysAllocString(u"abc"), result = nullptr;
    answer = call_slot(texts, kFirst + 3, &text, &result);
    SysFreeString(text);
  }).join();
  EXPECT_EQ(answer, status::kWrongThread);
}

// How many blocks of all heaps of the process are in use.
std::size_t blocks_in_use() {
  std::array<HANDLE, 64> heaps{};
  const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
  std::size_t blocks = 0;
  for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heaps[i], &entry))
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++blocks;
  }
  return blocks;
}

void make_and_use_an_object() {
  const Object texts = built_object("clsStringUtil");
  BSTR text = SysAllocString(u"abc"), result = nullptr;
  ASSERT_EQ(call_slot(texts, kFirst + 3, &text, &result), status::kOk);
  SysFreeString(text);
  SysFreeString(result);
}

TEST(SlotClient, ManyCallsLeaveNothingBehind) {
  for (int i = 0; i < 1000; ++i) make_and_use_an_object();
  const std::size_t before = blocks_in_use();
  ASSERT_GT(before, 0u);
  for (int i = 0; i < 100000; ++i) make_and_use_an_object();
  EXPECT_LT(blocks_in_use(), before + 1000);
}

// Late-bound, as a script does it: an array and a collection made anew, and an error.
void use_script_variables() {
  const Object parser = built_object("clsParse");
  Variant fields, items, reference_to_fields, reference_to_items;
  for (auto [variable, reference] :
       {std::pair{&fields, &reference_to_fields}, std::pair{&items, &reference_to_items}}) {
    reference->address()->vt = kVtByRef | kVtVariant;
    reference->address()->pvarVal = variable->address();
  }
  const Variant text(u"X a b x"), blank(u" "), token(u"x"), zero(std::int32_t{0});
  parser.call(u"ParseFields", {&text, &blank, &reference_to_fields});
  parser.call(u"ParseSubEntitiesIntoColl", {&text, &token, &reference_to_items});
  EXPECT_THROW(parser.call(u"ParseString", {&text, &blank, &zero}), Error);
  reference_to_fields.release();
  reference_to_items.release();
}

TEST(SlotClient, ManyLateBoundCallsLeaveNothingBehind) {
  for (int i = 0; i < 1000; ++i) use_script_variables();
  const std::size_t before = blocks_in_use();
  for (int i = 0; i < 33334; ++i) use_script_variables();
  EXPECT_LT(blocks_in_use(), before + 1000);
}

}  // namespace
}  // namespace kw::testing
