#include <string_view>

#include "kwutils/automation.h"
#include "platform/automation_leaks.h"
#include "platform/automation_object.h"

namespace kw {
namespace {

using test::reference_to;
using test::variant_of;

class AutomationVariant : public test::LeakCheckedTest {
 protected:
  void TearDown() override {
    VariantClear(&target);
    LeakCheckedTest::TearDown();
  }

  VARIANT target{};
};

TEST_F(AutomationVariant, StartsEmpty) {
  VARIANT raw = variant_of(7);
  VariantInit(&raw);
  EXPECT_EQ(raw.vt, kVtEmpty);
  VariantInit(nullptr);
}

TEST_F(AutomationVariant, GivesBackItsText) {
  VARIANT text = variant_of(u"abc");
  EXPECT_EQ(VariantClear(&text), status::kOk);
  EXPECT_EQ(text.vt, kVtEmpty);
}

TEST_F(AutomationVariant, ReleasesItsObject) {
  test::ValueObject object;
  VARIANT held = variant_of(&object);
  EXPECT_EQ(VariantClear(&held), status::kOk);
  EXPECT_EQ(object.references, 1u);
  VARIANT nothing = variant_of(static_cast<IDispatch*>(nullptr));
  EXPECT_EQ(VariantClear(&nothing), status::kOk);
}

TEST_F(AutomationVariant, LeavesAloneWhatItRefersTo) {
  BSTR text = SysAllocString(u"abc");
  VARIANT reference = reference_to(kVtBstr, &text);
  EXPECT_EQ(VariantClear(&reference), status::kOk);
  EXPECT_EQ(text[0], u'a');
  SysFreeString(text);
}

TEST_F(AutomationVariant, WithALockedArrayStays) {
  VARIANT held{};
  held.vt = kVtArray | kVtI2;
  held.parray = SafeArrayCreateVector(kVtI2, 0, 1);
  SafeArrayLock(held.parray);
  EXPECT_EQ(VariantClear(&held), status::kArrayIsLocked);
  EXPECT_EQ(held.vt, kVtArray | kVtI2);
  VARIANT text = variant_of(u"abc");
  EXPECT_EQ(VariantCopy(&held, &text), status::kArrayIsLocked);
  EXPECT_EQ(VariantChangeType(&held, &text, 0, kVtBstr), status::kArrayIsLocked);
  VariantClear(&text);
  SafeArrayUnlock(held.parray);
  EXPECT_EQ(VariantClear(&held), status::kOk);
}

TEST_F(AutomationVariant, CopyOfATextIsAnotherText) {
  VARIANT text{};
  text.vt = kVtBstr;
  text.bstrVal = SysAllocStringLen(u"a\0b", 3);
  EXPECT_EQ(VariantCopy(&target, &text), status::kOk);
  EXPECT_NE(target.bstrVal, text.bstrVal);
  EXPECT_EQ(std::u16string_view(target.bstrVal, SysStringLen(target.bstrVal)),
            std::u16string_view(u"a\0b", 3));
  VariantClear(&text);
}

TEST_F(AutomationVariant, CopyOfANullTextIsNull) {
  VARIANT text{};
  text.vt = kVtBstr;
  EXPECT_EQ(VariantCopy(&target, &text), status::kOk);
  EXPECT_EQ(target.vt, kVtBstr);
  EXPECT_EQ(target.bstrVal, nullptr);
}

TEST_F(AutomationVariant, CopyOfAnObjectHoldsAReference) {
  test::ValueObject object;
  VARIANT held = variant_of(&object);
  EXPECT_EQ(VariantCopy(&target, &held), status::kOk);
  EXPECT_EQ(object.references, 3u);
  VariantClear(&target);
  VariantClear(&held);
  EXPECT_EQ(object.references, 1u);
}

TEST_F(AutomationVariant, CopyOfAnArrayIsAnotherArray) {
  VARIANT held{};
  held.vt = kVtArray | kVtI2;
  held.parray = SafeArrayCreateVector(kVtI2, 0, 1);
  EXPECT_EQ(VariantCopy(&target, &held), status::kOk);
  EXPECT_EQ(target.vt, kVtArray | kVtI2);
  EXPECT_NE(target.parray, held.parray);
  VariantClear(&held);
}

TEST_F(AutomationVariant, CopyOfAReferenceIsThatReference) {
  std::int16_t number = 7;
  const VARIANT reference = reference_to(kVtI2, &number);
  EXPECT_EQ(VariantCopy(&target, &reference), status::kOk);
  EXPECT_EQ(target.vt, kVtI2 | kVtByRef);
  EXPECT_EQ(target.piVal, &number);
}

TEST_F(AutomationVariant, CopyEndsTheOldValue) {
  target = variant_of(u"old");
  const VARIANT number = variant_of(3);
  EXPECT_EQ(VariantCopy(&target, &number), status::kOk);
  EXPECT_EQ(target.lVal, 3);
}

TEST_F(AutomationVariant, CopyOverItselfChangesNothing) {
  target = variant_of(u"abc");
  const BSTR text = target.bstrVal;
  EXPECT_EQ(VariantCopy(&target, &target), status::kOk);
  EXPECT_EQ(VariantCopyInd(&target, &target), status::kOk);
  EXPECT_EQ(target.bstrVal, text);
}

TEST_F(AutomationVariant, IsReplacedByAnElementOfItsOwnArray) {
  target.vt = kVtArray | kVtVariant;
  target.parray = SafeArrayCreateVector(kVtVariant, 0, 1);
  auto* const element = static_cast<VARIANT*>(target.parray->pvData);
  *element = variant_of(u"inner");
  EXPECT_EQ(VariantCopy(&target, element), status::kOk);
  EXPECT_EQ(target.vt, kVtBstr);
  EXPECT_EQ(target.bstrVal[0], u'i');
}

TEST_F(AutomationVariant, FollowsReferences) {
  double number = 2.5;
  const VARIANT reference = reference_to(kVtR8, &number);
  EXPECT_EQ(VariantCopyInd(&target, &reference), status::kOk);
  EXPECT_EQ(target.vt, kVtR8);
  EXPECT_EQ(target.dblVal, 2.5);
}

TEST_F(AutomationVariant, FollowsReferencesToReferences) {
  SAFEARRAY* array = SafeArrayCreateVector(kVtVariant, 0, 3);
  VARIANT inner = reference_to(kVtArray | kVtVariant, &array);
  const VARIANT outer = reference_to(kVtVariant, &inner);
  EXPECT_EQ(VariantCopyInd(&target, &outer), status::kOk);
  EXPECT_EQ(target.vt, kVtArray | kVtVariant);
  EXPECT_NE(target.parray, array);
  SafeArrayDestroy(array);
}

TEST_F(AutomationVariant, IsReplacedByWhatItRefersTo) {
  BSTR text = SysAllocString(u"abc");
  target = reference_to(kVtBstr, &text);
  EXPECT_EQ(VariantCopyInd(&target, &target), status::kOk);
  EXPECT_EQ(target.vt, kVtBstr);
  EXPECT_NE(target.bstrVal, text);
  SysFreeString(text);
}

TEST_F(AutomationVariant, RefusesAVariantThatRefersToAFurtherVariant) {
  VARIANT last{};
  VARIANT inner = reference_to(kVtVariant, &last);
  const VARIANT outer = reference_to(kVtVariant, &inner);
  EXPECT_EQ(VariantCopyInd(&target, &outer), status::kInvalidArgument);
  VARIANT itself{};
  itself = reference_to(kVtVariant, &itself);
  EXPECT_EQ(VariantCopyInd(&target, &itself), status::kInvalidArgument);
}

TEST_F(AutomationVariant, RefusesReferencesToNothing) {
  for (const VARTYPE kind : {VARTYPE{kVtI2}, VARTYPE{kVtBstr}, VARTYPE{kVtVariant},
                             static_cast<VARTYPE>(kVtArray | kVtI2)}) {
    const VARIANT reference = reference_to(kind, nullptr);
    EXPECT_EQ(VariantCopyInd(&target, &reference), status::kInvalidArgument) << kind;
  }
}

TEST_F(AutomationVariant, OfAnUnknownKindIsRefused) {
  for (const int kind : {kVtVariant + 0, 15, 77, 0xFFF, kVtByRef + 0, kVtArray + 0,
                         kVtByRef | kVtNull, 0x1000 | 3}) {
    VARIANT strange{};
    strange.vt = static_cast<VARTYPE>(kind);
    EXPECT_EQ(VariantClear(&strange), status::kBadVariableType) << kind;
    EXPECT_EQ(VariantCopy(&target, &strange), status::kBadVariableType) << kind;
    EXPECT_EQ(VariantCopyInd(&target, &strange), status::kBadVariableType) << kind;
  }
}

TEST_F(AutomationVariant, OfNullGetsTheStatusOfTheSystem) {
  EXPECT_EQ(VariantClear(nullptr), status::kInvalidArgument);
  EXPECT_EQ(VariantCopy(nullptr, &target), status::kInvalidArgument);
  EXPECT_EQ(VariantCopy(&target, nullptr), status::kInvalidArgument);
  EXPECT_EQ(VariantCopyInd(nullptr, &target), status::kInvalidArgument);
  EXPECT_EQ(VariantCopyInd(&target, nullptr), status::kInvalidArgument);
}

}  // namespace
}  // namespace kw
