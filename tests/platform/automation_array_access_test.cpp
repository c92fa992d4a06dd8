#include <string_view>

#include "kwutils/automation.h"
#include "platform/automation_leaks.h"
#include "platform/automation_object.h"

namespace kw {
namespace {

class AutomationArrayAccess : public test::LeakCheckedTest {
 protected:
  void SetUp() override {
    SAFEARRAYBOUND bounds[2] = {{2, 10}, {3, 20}};
    table = SafeArrayCreate(kVtI2, 2, bounds);
    texts = SafeArrayCreateVector(kVtBstr, 1, 2);
  }

  void TearDown() override {
    SafeArrayDestroy(table);
    SafeArrayDestroy(texts);
    LeakCheckedTest::TearDown();
  }

  SAFEARRAY* table = nullptr;  // (10 To 11, 20 To 22)
  SAFEARRAY* texts = nullptr;  // (1 To 2)
  std::int32_t first = 1;
};

TEST_F(AutomationArrayAccess, CountsDimensionsFromTheLeft) {
  std::int32_t bound = 0;
  EXPECT_EQ(SafeArrayGetDim(table), 2u);
  EXPECT_EQ(SafeArrayGetLBound(table, 1, &bound), status::kOk);
  EXPECT_EQ(bound, 10);
  EXPECT_EQ(SafeArrayGetUBound(table, 1, &bound), status::kOk);
  EXPECT_EQ(bound, 11);
  EXPECT_EQ(SafeArrayGetLBound(table, 2, &bound), status::kOk);
  EXPECT_EQ(bound, 20);
  EXPECT_EQ(SafeArrayGetUBound(table, 2, &bound), status::kOk);
  EXPECT_EQ(bound, 22);
  EXPECT_EQ(table->rgsabound[0].lLbound, 20);
}

TEST_F(AutomationArrayAccess, RefusesDimensionsThatAreNotThere) {
  std::int32_t bound = 0;
  EXPECT_EQ(SafeArrayGetLBound(table, 0, &bound), status::kBadIndex);
  EXPECT_EQ(SafeArrayGetLBound(table, 3, &bound), status::kBadIndex);
  EXPECT_EQ(SafeArrayGetUBound(table, 0, &bound), status::kBadIndex);
  EXPECT_EQ(SafeArrayGetUBound(table, 3, &bound), status::kBadIndex);
}

TEST_F(AutomationArrayAccess, VariesTheLeftmostIndexFastest) {
  const auto offset_of = [this](std::int32_t left, std::int32_t right) {
    std::int32_t indices[2] = {left, right};
    void* element = nullptr;
    EXPECT_EQ(SafeArrayPtrOfIndex(table, indices, &element), status::kOk);
    return static_cast<std::int16_t*>(element) - static_cast<std::int16_t*>(table->pvData);
  };
  EXPECT_EQ(offset_of(10, 20), 0);
  EXPECT_EQ(offset_of(11, 20), 1);
  EXPECT_EQ(offset_of(10, 21), 2);
  EXPECT_EQ(offset_of(11, 22), 5);
}

TEST_F(AutomationArrayAccess, RefusesIndicesOutsideTheBounds) {
  const std::int32_t outside[][2] = {{9, 20},  {12, 20},        {10, 19},
                                     {10, 23}, {INT32_MIN, 20}, {INT32_MAX, 20}};
  for (const auto& pair : outside) {
    std::int32_t indices[2] = {pair[0], pair[1]};
    void* element = nullptr;
    EXPECT_EQ(SafeArrayPtrOfIndex(table, indices, &element), status::kBadIndex);
    std::int16_t value = 0;
    EXPECT_EQ(SafeArrayGetElement(table, indices, &value), status::kBadIndex);
    EXPECT_EQ(SafeArrayPutElement(table, indices, &value), status::kBadIndex);
  }
}

TEST_F(AutomationArrayAccess, LocksAreCounted) {
  EXPECT_EQ(SafeArrayUnlock(table), status::kUnexpected);
  EXPECT_EQ(SafeArrayLock(table), status::kOk);
  void* data = nullptr;
  EXPECT_EQ(SafeArrayAccessData(table, &data), status::kOk);
  EXPECT_EQ(data, table->pvData);
  EXPECT_EQ(table->cLocks, 2u);
  EXPECT_EQ(SafeArrayUnaccessData(table), status::kOk);
  EXPECT_EQ(SafeArrayUnlock(table), status::kOk);
  EXPECT_EQ(table->cLocks, 0u);
}

TEST_F(AutomationArrayAccess, LocksEndAtSixteenBits) {
  table->cLocks = 0xFFFF;
  void* data = this;
  EXPECT_EQ(SafeArrayLock(table), status::kUnexpected);
  EXPECT_EQ(SafeArrayAccessData(table, &data), status::kUnexpected);
  EXPECT_EQ(data, nullptr);
  table->cLocks = 0;
}

TEST_F(AutomationArrayAccess, PutsAndGetsCopiesOfTexts) {
  const BSTR text = SysAllocStringLen(u"a\0b", 3);
  EXPECT_EQ(SafeArrayPutElement(texts, &first, text), status::kOk);
  EXPECT_EQ(SafeArrayPutElement(texts, &first, text), status::kOk) << "the old text is freed";
  BSTR found = nullptr;
  EXPECT_EQ(SafeArrayGetElement(texts, &first, &found), status::kOk);
  EXPECT_NE(found, text);
  EXPECT_EQ(std::u16string_view(found, SysStringLen(found)), std::u16string_view(u"a\0b", 3));
  SysFreeString(found);
  SysFreeString(text);
}

TEST_F(AutomationArrayAccess, PutsTheNullText) {
  const BSTR text = SysAllocString(u"a");
  EXPECT_EQ(SafeArrayPutElement(texts, &first, text), status::kOk);
  EXPECT_EQ(SafeArrayPutElement(texts, &first, nullptr), status::kOk);
  BSTR found = text;
  EXPECT_EQ(SafeArrayGetElement(texts, &first, &found), status::kOk);
  EXPECT_EQ(found, nullptr);
  SysFreeString(text);
}

TEST_F(AutomationArrayAccess, PutsItsOwnTextAgain) {
  const BSTR text = SysAllocString(u"abc");
  SafeArrayPutElement(texts, &first, text);
  SysFreeString(text);
  EXPECT_EQ(SafeArrayPutElement(texts, &first, static_cast<BSTR*>(texts->pvData)[0]), status::kOk);
  EXPECT_EQ(static_cast<BSTR*>(texts->pvData)[0][2], u'c');
}

TEST_F(AutomationArrayAccess, PutsAndGetsVariants) {
  SAFEARRAY* const values = SafeArrayCreateVector(kVtVariant, 1, 1);
  VARIANT text = test::variant_of(u"abc");
  EXPECT_EQ(SafeArrayPutElement(values, &first, &text), status::kOk);
  EXPECT_EQ(SafeArrayPutElement(values, &first, &text), status::kOk) << "the old value ends";
  VARIANT found = test::variant_of(1);  // not looked at: the caller's memory may be raw
  EXPECT_EQ(SafeArrayGetElement(values, &first, &found), status::kOk);
  EXPECT_EQ(found.vt, kVtBstr);
  EXPECT_NE(found.bstrVal, text.bstrVal);
  VariantClear(&found);
  VariantClear(&text);
  SafeArrayDestroy(values);
}

TEST_F(AutomationArrayAccess, HoldsReferencesToObjects) {
  test::ValueObject object;
  SAFEARRAY* const objects = SafeArrayCreateVector(kVtDispatch, 1, 1);
  EXPECT_EQ(SafeArrayPutElement(objects, &first, static_cast<IDispatch*>(&object)), status::kOk);
  IDispatch* found = nullptr;
  EXPECT_EQ(SafeArrayGetElement(objects, &first, &found), status::kOk);
  EXPECT_EQ(found, &object);
  EXPECT_EQ(object.references, 3u);
  found->Release();
  EXPECT_EQ(SafeArrayPutElement(objects, &first, nullptr), status::kOk);
  EXPECT_EQ(object.references, 1u);
  SafeArrayDestroy(objects);
}

TEST_F(AutomationArrayAccess, WithoutDataHasNoElements) {
  SAFEARRAY* array = nullptr;
  SafeArrayAllocDescriptorEx(kVtI2, 1, &array);
  array->rgsabound[0] = {5, 0};
  void* element = nullptr;
  EXPECT_EQ(SafeArrayPtrOfIndex(array, &first, &element), status::kBadIndex);
  SafeArrayDestroy(array);
}

TEST_F(AutomationArrayAccess, OfNullGetsTheStatusOfTheSystem) {
  std::int32_t bound = 0;
  void* data = nullptr;
  VARTYPE kind = 0;
  EXPECT_EQ(SafeArrayGetDim(nullptr), 0u);
  EXPECT_EQ(SafeArrayGetElemsize(nullptr), 0u);
  EXPECT_EQ(SafeArrayGetLBound(nullptr, 1, &bound), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetUBound(nullptr, 1, &bound), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetLBound(table, 1, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetUBound(table, 1, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayLock(nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayUnlock(nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayAccessData(nullptr, &data), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayAccessData(table, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayUnaccessData(nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetVartype(nullptr, &kind), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetVartype(table, nullptr), status::kInvalidArgument);
}

TEST_F(AutomationArrayAccess, OfNullIndicesGetsTheStatusOfTheSystem) {
  std::int32_t indices[2] = {10, 20};
  std::int16_t value = 0;
  void* data = nullptr;
  EXPECT_EQ(SafeArrayPtrOfIndex(nullptr, indices, &data), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayPtrOfIndex(table, nullptr, &data), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayPtrOfIndex(table, indices, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetElement(nullptr, indices, &value), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetElement(table, nullptr, &value), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayGetElement(table, indices, nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayPutElement(table, nullptr, &value), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayPutElement(table, indices, nullptr), status::kInvalidArgument);
}

TEST_F(AutomationArrayAccess, WithoutAKindHasNone) {
  SAFEARRAY array{};
  array.cDims = 1;
  VARTYPE kind = 0;
  EXPECT_EQ(SafeArrayGetVartype(&array, &kind), status::kInvalidArgument);
}

}  // namespace
}  // namespace kw
