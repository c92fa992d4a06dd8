#include "kwutils/automation.h"
#include "platform/automation_leaks.h"
#include "platform/automation_object.h"

namespace kw {
namespace {

class AutomationArray : public test::LeakCheckedTest {};

SAFEARRAY* array_of(VARTYPE kind, std::int32_t lower, std::uint32_t count) {
  SAFEARRAYBOUND bound{count, lower};
  return SafeArrayCreate(kind, 1, &bound);
}

SAFEARRAY* array_of_two_texts() {
  SAFEARRAY* const array = array_of(kVtBstr, 0, 2);
  auto** const texts = static_cast<BSTR*>(array->pvData);
  texts[0] = SysAllocString(u"a");
  texts[1] = SysAllocString(u"b");
  return array;
}

TEST_F(AutomationArray, NamesItsKindInItsFeatures) {
  struct Case {
    VARTYPE kind;
    unsigned features;
    std::uint32_t size;
  };
  const Case cases[] = {{kVtI2, 0x0080, 2},
                        {kVtI4, 0x0080, 4},
                        {kVtR4, 0x0080, 4},
                        {kVtR8, 0x0080, 8},
                        {kVtBool, 0x0080, 2},
                        {kVtUi1, 0x0080, 1},
                        {kVtBstr, 0x0180, sizeof(void*)},
                        {kVtVariant, 0x0880, sizeof(VARIANT)},
                        {kVtDispatch, 0x0440, sizeof(void*)},
                        {kVtUnknown, 0x0240, sizeof(void*)}};
  for (const auto& [kind, features, size] : cases) {
    SAFEARRAY* const array = array_of(kind, 1, 3);
    ASSERT_NE(array, nullptr) << kind;
    EXPECT_EQ(array->fFeatures, features) << kind;
    EXPECT_EQ(SafeArrayGetElemsize(array), size) << kind;
    VARTYPE found = 0;
    EXPECT_EQ(SafeArrayGetVartype(array, &found), status::kOk);
    EXPECT_EQ(found, kind);
    EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
  }
}

TEST_F(AutomationArray, StartsWithZeros) {
  SAFEARRAY* const array = array_of(kVtI4, 0, 100);
  const auto* const values = static_cast<const std::int32_t*>(array->pvData);
  for (int i = 0; i < 100; ++i) EXPECT_EQ(values[i], 0);
  SafeArrayDestroy(array);
}

TEST_F(AutomationArray, OfKindsWithoutElementsIsRefused) {
  for (const VARTYPE kind :
       {VARTYPE{kVtEmpty}, VARTYPE{kVtNull}, VARTYPE{77}, static_cast<VARTYPE>(kVtI2 | kVtByRef)}) {
    EXPECT_EQ(array_of(kind, 0, 1), nullptr) << kind;
    SAFEARRAY* array = nullptr;
    EXPECT_EQ(SafeArrayAllocDescriptorEx(kind, 1, &array), status::kInvalidArgument) << kind;
  }
}

TEST_F(AutomationArray, WithoutDimensionsIsRefused) {
  SAFEARRAYBOUND bound{1, 0};
  SAFEARRAY* array = nullptr;
  EXPECT_EQ(SafeArrayCreate(kVtI2, 0, &bound), nullptr);
  EXPECT_EQ(SafeArrayCreate(kVtI2, 1, nullptr), nullptr);
  EXPECT_EQ(SafeArrayCreate(kVtI2, 0x10000, &bound), nullptr);
  EXPECT_EQ(SafeArrayAllocDescriptorEx(kVtI2, 0, &array), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayAllocDescriptorEx(kVtI2, 0x10000, &array), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayAllocDescriptorEx(kVtI2, 1, nullptr), status::kPointer);
}

TEST_F(AutomationArray, TooLargeForThirtyTwoBitsIsRefused) {
  EXPECT_EQ(array_of(kVtR8, 0, 0x20000000), nullptr);
  SAFEARRAYBOUND many[3] = {{0xFFFFFFFF, 0}, {0xFFFFFFFF, 0}, {0xFFFFFFFF, 0}};
  EXPECT_EQ(SafeArrayCreate(kVtVariant, 3, many), nullptr);
  // The number of elements is 0 in 64 bits.
  SAFEARRAYBOUND wrapping[4] = {{0x10000, 0}, {0x10000, 0}, {0x10000, 0}, {0x10000, 0}};
  EXPECT_EQ(SafeArrayCreate(kVtUi1, 4, wrapping), nullptr);
}

TEST_F(AutomationArray, MayHaveNoElements) {
  SAFEARRAY* const array = array_of(kVtBstr, 0, 0);
  ASSERT_NE(array, nullptr);
  std::int32_t upper = 0;
  EXPECT_EQ(SafeArrayGetUBound(array, 1, &upper), status::kOk);
  EXPECT_EQ(upper, -1);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, GivesBackTextsWhenItIsDestroyed) {
  SAFEARRAY* const array = array_of_two_texts();
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, ReleasesObjectsWhenItIsDestroyed) {
  for (const VARTYPE kind : {VARTYPE{kVtDispatch}, VARTYPE{kVtUnknown}}) {
    test::ValueObject object;
    SAFEARRAY* const array = array_of(kind, 0, 2);
    std::int32_t index = 1;
    EXPECT_EQ(SafeArrayPutElement(array, &index, static_cast<IDispatch*>(&object)), status::kOk);
    EXPECT_EQ(object.references, 2u);
    EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
    EXPECT_EQ(object.references, 1u);
  }
}

TEST_F(AutomationArray, ReleasesWhatItsVariantsHold) {
  test::ValueObject object;
  SAFEARRAY* const array = array_of(kVtVariant, 0, 2);
  auto* const values = static_cast<VARIANT*>(array->pvData);
  values[0] = test::variant_of(u"text");
  values[1] = test::variant_of(&object);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
  EXPECT_EQ(object.references, 1u);
}

TEST_F(AutomationArray, LockedIsNeitherDestroyedNorResized) {
  SAFEARRAY* const array = array_of(kVtI2, 0, 2);
  SAFEARRAYBOUND bound{5, 0};
  EXPECT_EQ(SafeArrayLock(array), status::kOk);
  EXPECT_EQ(SafeArrayDestroy(array), status::kArrayIsLocked);
  EXPECT_EQ(SafeArrayDestroyData(array), status::kArrayIsLocked);
  EXPECT_EQ(SafeArrayRedim(array, &bound), status::kArrayIsLocked);
  EXPECT_EQ(array->rgsabound[0].cElements, 2u);
  EXPECT_EQ(SafeArrayUnlock(array), status::kOk);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, OfFixedSizeIsNotResized) {
  SAFEARRAY* const array = array_of(kVtI2, 0, 2);
  array->fFeatures |= kFeatureFixedSize;
  SAFEARRAYBOUND bound{5, 0};
  EXPECT_EQ(SafeArrayRedim(array, &bound), status::kArrayIsLocked);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, GrowsWithZerosAndKeepsItsElements) {
  SAFEARRAY* const array = array_of(kVtI4, 1, 2);
  static_cast<std::int32_t*>(array->pvData)[1] = 7;
  SAFEARRAYBOUND bound{1000, -3};
  EXPECT_EQ(SafeArrayRedim(array, &bound), status::kOk);
  const auto* const values = static_cast<const std::int32_t*>(array->pvData);
  EXPECT_EQ(values[1], 7);
  for (int i = 2; i < 1000; ++i) ASSERT_EQ(values[i], 0);
  EXPECT_EQ(array->rgsabound[0].lLbound, -3);
  SafeArrayDestroy(array);
}

TEST_F(AutomationArray, GivesBackTextsThatNoLongerFit) {
  SAFEARRAY* const array = array_of_two_texts();
  const test::LiveCounts before;
  SAFEARRAYBOUND one{1, 0};
  EXPECT_EQ(SafeArrayRedim(array, &one), status::kOk);
  EXPECT_EQ(test::LiveCounts().strings, before.strings - 1);
  SAFEARRAYBOUND none{0, 0};
  EXPECT_EQ(SafeArrayRedim(array, &none), status::kOk);
  EXPECT_EQ(test::LiveCounts().strings, before.strings - 2);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, StaysWhenItCannotGrow) {
  SAFEARRAY* const array = array_of_two_texts();
  SAFEARRAYBOUND bound{0xFFFFFFFF, 0};
  EXPECT_EQ(SafeArrayRedim(array, &bound), status::kOutOfMemory);
  EXPECT_EQ(array->rgsabound[0].cElements, 2u);
  EXPECT_EQ(static_cast<BSTR*>(array->pvData)[1][0], u'b');
  SafeArrayDestroy(array);
}

TEST_F(AutomationArray, OfTwoDimensionsGrowsInTheLastOne) {
  SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
  SAFEARRAY* const array = SafeArrayCreate(kVtI2, 2, bounds);
  std::int32_t indices[2] = {1, 1};
  std::int16_t value = 5;
  EXPECT_EQ(SafeArrayPutElement(array, indices, &value), status::kOk);
  SAFEARRAYBOUND last{4, 0};
  EXPECT_EQ(SafeArrayRedim(array, &last), status::kOk);
  std::int32_t first_upper = 0;
  std::int32_t last_upper = 0;
  SafeArrayGetUBound(array, 1, &first_upper);
  SafeArrayGetUBound(array, 2, &last_upper);
  EXPECT_EQ(first_upper, 1);
  EXPECT_EQ(last_upper, 3);
  value = 0;
  EXPECT_EQ(SafeArrayGetElement(array, indices, &value), status::kOk);
  EXPECT_EQ(value, 5);
  SafeArrayDestroy(array);
}

TEST_F(AutomationArray, WithoutDataIsGivenSomeByResizing) {
  SAFEARRAY* array = nullptr;
  ASSERT_EQ(SafeArrayAllocDescriptorEx(kVtI4, 1, &array), status::kOk);
  EXPECT_EQ(array->pvData, nullptr);
  SAFEARRAYBOUND bound{3, 1};
  EXPECT_EQ(SafeArrayRedim(array, &bound), status::kOk);
  ASSERT_NE(array->pvData, nullptr);
  EXPECT_EQ(static_cast<std::int32_t*>(array->pvData)[2], 0);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, DescriptorTakesDataForItsBounds) {
  SAFEARRAY* array = nullptr;
  ASSERT_EQ(SafeArrayAllocDescriptorEx(kVtI4, 1, &array), status::kOk);
  array->rgsabound[0] = {3, 0};
  EXPECT_EQ(SafeArrayAllocData(array), status::kOk);
  EXPECT_EQ(static_cast<std::int32_t*>(array->pvData)[2], 0);
  EXPECT_EQ(SafeArrayDestroyData(array), status::kOk);
  EXPECT_EQ(array->pvData, nullptr);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

TEST_F(AutomationArray, CopyOwnsCopiesOfTheElements) {
  SAFEARRAY* const array = array_of_two_texts();
  SAFEARRAY* copy = nullptr;
  ASSERT_EQ(SafeArrayCopy(array, &copy), status::kOk);
  const auto* const from = static_cast<BSTR*>(array->pvData);
  const auto* const to = static_cast<BSTR*>(copy->pvData);
  EXPECT_NE(from[1], to[1]);
  EXPECT_EQ(to[1][0], u'b');
  SafeArrayDestroy(array);
  SafeArrayDestroy(copy);
}

TEST_F(AutomationArray, CopyIsNeitherFixedNorLocked) {
  SAFEARRAY* const array = array_of(kVtUi1, 4, 3);
  static_cast<std::uint8_t*>(array->pvData)[2] = 9;
  array->fFeatures |= kFeatureFixedSize;
  SafeArrayLock(array);
  SAFEARRAY* copy = nullptr;
  ASSERT_EQ(SafeArrayCopy(array, &copy), status::kOk);
  EXPECT_EQ(copy->fFeatures, 0x0080);
  EXPECT_EQ(copy->cLocks, 0u);
  EXPECT_EQ(copy->rgsabound[0].lLbound, 4);
  EXPECT_EQ(static_cast<std::uint8_t*>(copy->pvData)[2], 9);
  SafeArrayUnlock(array);
  SafeArrayDestroy(array);
  SafeArrayDestroy(copy);
}

TEST_F(AutomationArray, CopyOfNothingIsNothing) {
  SAFEARRAY* copy = reinterpret_cast<SAFEARRAY*>(&copy);
  EXPECT_EQ(SafeArrayCopy(nullptr, &copy), status::kOk);
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(SafeArrayCopy(nullptr, nullptr), status::kInvalidArgument);
}

TEST_F(AutomationArray, KeptByItsOwnerIsNotFreed) {
  SAFEARRAY array{};
  array.cDims = 1;
  array.cbElements = 4;
  array.fFeatures = kFeatureAuto;
  array.rgsabound[0] = {2, 0};
  ASSERT_EQ(SafeArrayAllocData(&array), status::kOk);
  EXPECT_EQ(SafeArrayDestroy(&array), status::kOk);
  EXPECT_EQ(array.pvData, nullptr);
}

TEST_F(AutomationArray, OfNullGetsTheStatusOfTheSystem) {
  SAFEARRAYBOUND bound{1, 0};
  EXPECT_EQ(SafeArrayDestroy(nullptr), status::kOk);
  EXPECT_EQ(SafeArrayDestroyData(nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayAllocData(nullptr), status::kInvalidArgument);
  EXPECT_EQ(SafeArrayRedim(nullptr, &bound), status::kInvalidArgument);
  SAFEARRAY* const array = array_of(kVtI2, 0, 1);
  EXPECT_EQ(SafeArrayRedim(array, nullptr), status::kInvalidArgument);
  SafeArrayDestroy(array);
}

// An object that changes the array in which it ends.
class Meddler final : public IUnknown {
 public:
  explicit Meddler(SAFEARRAY* array) : array_(array) {}

  HRESULT answer = status::kOk;

  HRESULT KW_STDCALL QueryInterface(const GUID&, void**) override { return status::kNoInterface; }
  std::uint32_t KW_STDCALL AddRef() override { return 2; }
  std::uint32_t KW_STDCALL Release() override {
    SAFEARRAYBOUND none{0, 0};
    answer = SafeArrayRedim(array_, &none);
    return 1;
  }

 private:
  SAFEARRAY* array_;
};

TEST_F(AutomationArray, IsLockedWhileItsElementsEnd) {
  SAFEARRAY* const array = array_of(kVtUnknown, 0, 1);
  Meddler meddler(array);
  static_cast<IUnknown**>(array->pvData)[0] = &meddler;
  SAFEARRAYBOUND none{0, 0};
  EXPECT_EQ(SafeArrayRedim(array, &none), status::kOk);
  EXPECT_EQ(meddler.answer, status::kArrayIsLocked);
  EXPECT_EQ(SafeArrayDestroy(array), status::kOk);
}

}  // namespace
}  // namespace kw
