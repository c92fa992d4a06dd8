// A small class of every kind of parameter, called through its slots' late-bound form as hosts do.
#include <gtest/gtest.h>

#include <limits>

#include "frame/factory.h"
#include "frame/method.h"
#include "kwutils/error.h"

namespace kw::frame {
namespace {

class Sample {
 public:
  std::int32_t Add(std::int32_t left, const std::int32_t& right) { return left + right; }
  String Consume(String& text) {
    String first = text.view().substr(0, 1);
    text = text.view().substr(1);
    return first;
  }
  void Count(std::int32_t& number) { number += 70000; }
  Boolean IsMissing(const Variant& value) { return value.is_missing(); }
  Boolean Descending(const Boolean& flag) { return flag; }
  void Fill(Array<String>& array) {
    array.redim(1, 2);
    array.at(1) = u"one";
    array.at(2) = u"two";
  }
  void Replace(Collection& items) { items = Collection::create(); }
  void Fail() { throw Error(ErrorNumber::file_not_found, "a.ent"); }
  void FailLate(String& text) {
    text = u"changed";
    throw Error(ErrorNumber::overflow);
  }
  void Resize(const String& element, Array<String>& array) {
    const std::u16string before(element.view());
    array.redim(1, 9);
    if (element.view() != before) throw Error(ErrorNumber::io_error);
  }
  String Same(std::u16string_view by_value, String& changed) {
    changed = u"gone";
    return String(by_value);
  }
};

const ClassTable& table() {
  static const ClassTable result = [] {
    ClassDescription d;
    d.name = "clsSample";
    d.interface_id = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    using S = Sample;
    d.methods = {
        method<&S::Add>(0, "Add", {"left", "right"}, "Adds."),
        method<&S::Consume>(1, "Consume", {"text"}, "Takes one off."),
        method<&S::Count>(4, "Count", {"number"}, "Adds 70000."),
        method<&S::IsMissing>(5, "IsMissing", {optional("value")}, "Tests."),
        method<&S::Descending>(6, "Descending", {optional("flag", -1)}, "Tests."),
        method<&S::Fill>(7, "Fill", {"array"}, "Fills."),
        method<&S::Replace>(8, "Replace", {"items"}, "Replaces."),
        method<&S::Fail>(9, "Fail", {}, "Fails."),
        method<&S::FailLate>(10, "FailLate", {"text"}, "Fails after a change."),
        method<&S::Resize>(12, "Resize", {"element", "array"}, "Resizes."),
        method<&S::Same>(11, "Same", {"by_value", "changed"}, "Changes what it reads."),
    };
    return table_of<Sample>(std::move(d));
  }();
  return result;
}

struct LateBound : testing::Test {
  LateBound() {
    void* made = nullptr;
    EXPECT_EQ(create_object(table(), kIidDispatch, &made), status::kOk);
    object = Object::attach(static_cast<IDispatch*>(made));
  }
  HRESULT invoke(DISPID id, std::vector<VARIANT> reversed, std::uint16_t flags = kDispatchMethod) {
    DISPPARAMS sent = {reversed.data(), nullptr, static_cast<std::uint32_t>(reversed.size()), 0};
    return object.pointer()->Invoke(kFirstMember + id, kNullGuid, 0, flags, &sent, result.address(),
                                    &exception, &bad);
  }
  ~LateBound() override {
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
  }
  Object object;
  Variant result;
  EXCEPINFO exception = {};
  std::uint32_t bad = 99;
};

VARIANT reference_to(VARIANT& variable) {
  VARIANT result = {};
  result.vt = kVtByRef | kVtVariant;
  result.pvarVal = &variable;
  return result;
}

TEST_F(LateBound, CoercesArguments) {
  EXPECT_EQ(invoke(0, {Variant(2.5).raw(), Variant(std::int16_t{3}).raw()}), status::kOk);
  EXPECT_EQ(result.to_int32(), 5);
}

TEST_F(LateBound, NamesWhichArgumentHasTheWrongKind) {
  const Variant text(u"pump");
  EXPECT_EQ(invoke(0, {text.raw(), Variant(std::int32_t{1}).raw()}), status::kTypeMismatch);
  EXPECT_EQ(bad, 0u);
}

TEST_F(LateBound, CountsArguments) {
  EXPECT_EQ(invoke(0, {Variant(1.0).raw()}), status::kBadParameterCount);
  EXPECT_EQ(invoke(9, {Variant(1.0).raw()}), status::kBadParameterCount);
}

TEST_F(LateBound, ScriptVariablesAreChangedInPlace) {
  Variant variable(u"abc");
  EXPECT_EQ(invoke(1, {reference_to(*variable.address())}), status::kOk);
  EXPECT_EQ(result.text().view(), u"a");
  EXPECT_EQ(variable.text().view(), u"bc");
}

TEST_F(LateBound, AChangedNumberKeepsTheVariablesKindWhereItFits) {
  Variant small(std::int16_t{1});
  EXPECT_EQ(invoke(4, {reference_to(*small.address())}), status::kOk);
  EXPECT_EQ(small.to_int32(), 70001);
  Variant text(u"5");
  EXPECT_EQ(invoke(4, {reference_to(*text.address())}), status::kOk);
  EXPECT_EQ(text.text().view(), u"70005");
}

TEST_F(LateBound, LeftOutOptionalsCarryTheirDefaults) {
  EXPECT_EQ(invoke(5, {}), status::kOk);
  EXPECT_TRUE(result.to_boolean());
  EXPECT_EQ(invoke(5, {Variant(u"").raw()}), status::kOk);
  EXPECT_FALSE(result.to_boolean());
  EXPECT_EQ(invoke(6, {Variant::missing().raw()}), status::kOk);
  EXPECT_TRUE(result.to_boolean());
}

TEST_F(LateBound, ScriptArraysComeBackAsArraysOfVariants) {
  Variant variable;
  EXPECT_EQ(invoke(7, {reference_to(*variable.address())}), status::kOk);
  ASSERT_EQ(variable.raw().vt, kVtArray | kVtVariant);
  std::int32_t index = 2;
  Variant element;
  SafeArrayGetElement(variable.raw().parray, &index, element.address());
  EXPECT_EQ(element.text().view(), u"two");
}

TEST_F(LateBound, AnUnsetVariableTakesTheNewCollection) {
  Variant variable;
  EXPECT_EQ(invoke(8, {reference_to(*variable.address())}), status::kOk);
  EXPECT_EQ(variable.to_object().get(u"Count").to_int32(), 0);
}

TEST_F(LateBound, FailuresCarryNumberSourceAndDescription) {
  EXPECT_EQ(invoke(9, {}), status::kException);
  EXPECT_EQ(exception.scode, status::kRunTimeError + 53);
  EXPECT_EQ(std::u16string_view(exception.bstrSource), u"kwUtils.clsSample");
  EXPECT_EQ(std::u16string_view(exception.bstrDescription), u"File not found: 'a.ent'");
}

TEST_F(LateBound, ChangesBeforeAFailureStay) {
  Variant number(std::int32_t{7});
  EXPECT_EQ(invoke(10, {reference_to(*number.address())}), status::kException);
  EXPECT_EQ(number.text().view(), u"changed");
}

TEST_F(LateBound, MethodsWithoutArgumentsAnswerAsProperties) {
  EXPECT_EQ(invoke(9, {}, kDispatchPropertyGet), status::kException);
  EXPECT_EQ(invoke(0, {}, kDispatchPropertyGet), status::kMemberNotFound);
}

TEST_F(LateBound, WithdrawnNumbersAreUnknownMembers) {
  EXPECT_EQ(invoke(2, {}), status::kMemberNotFound);
  EXPECT_EQ(invoke(500, {}), status::kMemberNotFound);
  EXPECT_EQ(invoke(-kFirstMember, {}), status::kMemberNotFound);
}

TEST_F(LateBound, NamesAreFoundInAnyCaseAndArgumentsByName) {
  char16_t member[] = u"ADD", right[] = u"Right", unknown[] = u"none";
  char16_t* names[] = {member, right, unknown};
  DISPID ids[3];
  EXPECT_EQ(object.pointer()->GetIDsOfNames(kNullGuid, names, 2, 0, ids), status::kOk);
  EXPECT_EQ(ids[0], kFirstMember);
  EXPECT_EQ(ids[1], 1);
  EXPECT_EQ(object.pointer()->GetIDsOfNames(kNullGuid, names, 3, 0, ids), status::kUnknownName);
  VARIANT sent[] = {Variant(std::int32_t{40}).raw(), Variant(std::int32_t{2}).raw()};
  DISPPARAMS parameters = {sent, &ids[1], 2, 1};
  EXPECT_EQ(object.pointer()->Invoke(kFirstMember, kNullGuid, 0, kDispatchMethod, &parameters,
                                     result.address(), nullptr, nullptr),
            status::kOk);
  EXPECT_EQ(result.to_int32(), 42);
}

TEST_F(LateBound, AVariableGivenTwiceIsReadAsItWas) {
  BSTR text = SysAllocString(u"kept");
  VARIANT reference = {};
  reference.vt = kVtByRef | kVtBstr;
  reference.pbstrVal = &text;
  EXPECT_EQ(invoke(11, {reference, reference}), status::kOk);
  EXPECT_EQ(result.text().view(), u"kept");
  SysFreeString(text);
}

TEST_F(LateBound, ReferencesToNothingAreRefused) {
  for (const VARTYPE kind : {kVtBstr, kVtI4, kVtDispatch, kVtVariant}) {
    VARIANT nowhere = {};
    nowhere.vt = static_cast<VARTYPE>(kind | kVtByRef);
    EXPECT_EQ(invoke(1, {nowhere}), status::kInvalidArgument) << kind;
  }
  VARIANT array = {};
  array.vt = kVtArray | kVtBstr | kVtByRef;
  EXPECT_EQ(invoke(7, {array}), status::kInvalidArgument);
  EXPECT_EQ(invoke(7, {reference_to(array)}), status::kInvalidArgument);
  EXPECT_EQ(bad, 0u);
}

TEST_F(LateBound, VariablesOfVariablesAreFollowed) {
  Variant number(std::int32_t{2}), text(u"abc");
  VARIANT inner = reference_to(*number.address());
  EXPECT_EQ(invoke(0, {reference_to(inner), reference_to(inner)}), status::kOk);
  EXPECT_EQ(result.to_int32(), 4);
  inner = reference_to(*text.address());
  EXPECT_EQ(invoke(1, {reference_to(inner)}), status::kOk);
  EXPECT_EQ(text.text().view(), u"bc");
  result = Variant();
  Variant missing = Variant::missing();
  inner = reference_to(*missing.address());
  EXPECT_EQ(invoke(5, {reference_to(inner)}), status::kOk);
  EXPECT_TRUE(result.to_boolean());
}

TEST_F(LateBound, VariablesThatGoRoundInACircleAreRefused) {
  VARIANT one = {}, other = reference_to(one);
  one = reference_to(other);
  EXPECT_EQ(invoke(0, {one, Variant(1.0).raw()}), status::kInvalidArgument);
  EXPECT_EQ(bad, 0u);
  EXPECT_EQ(invoke(1, {other}), status::kInvalidArgument);
}

TEST_F(LateBound, AVariableMaySayThatAnOptionalIsLeftOut) {
  Variant missing = Variant::missing();
  EXPECT_EQ(invoke(6, {reference_to(*missing.address())}), status::kOk);
  EXPECT_TRUE(result.to_boolean());
  EXPECT_EQ(invoke(4, {reference_to(*missing.address())}), status::kTypeMismatch);
}

TEST_F(LateBound, ThereIsNoResultWhereAChangeCannotGoBack) {
  double number = 5;  // of its text nothing is left
  VARIANT reference = {};
  reference.vt = kVtByRef | kVtR8;
  reference.pdblVal = &number;
  EXPECT_EQ(invoke(1, {reference}), status::kTypeMismatch);
  EXPECT_EQ(bad, 0u);
  EXPECT_EQ(result.raw().vt, kVtEmpty);
  EXPECT_EQ(number, 5);
}

TEST_F(LateBound, WhatIsNoNumberIsNoWholeOne) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  Variant variable(nan);
  EXPECT_EQ(invoke(0, {Variant(1.0).raw(), Variant(nan).raw()}), status::kOverflow);
  EXPECT_EQ(invoke(0, {reference_to(*variable.address()), Variant(1.0).raw()}), status::kOverflow);
}

TEST_F(LateBound, MalformedParametersAreRefused) {
  DISPPARAMS missing = {nullptr, nullptr, 2, 0};
  EXPECT_EQ(object.pointer()->Invoke(kFirstMember, kNullGuid, 0, kDispatchMethod, &missing, nullptr,
                                     nullptr, nullptr),
            status::kInvalidArgument);
  VARIANT number = Variant(std::int32_t{1}).raw();
  DISPPARAMS unnamed = {&number, nullptr, 1, 1};
  EXPECT_EQ(object.pointer()->Invoke(kFirstMember, kNullGuid, 0, kDispatchMethod, &unnamed, nullptr,
                                     nullptr, nullptr),
            status::kInvalidArgument);
}

VARIANT variant_array(std::int32_t lower, std::uint32_t count) {
  SAFEARRAYBOUND bound = {count, lower};
  VARIANT result = {};
  result.vt = kVtArray | kVtVariant;
  result.parray = SafeArrayCreate(kVtVariant, 1, &bound);
  return result;
}

TEST_F(LateBound, AnArrayVariableOfVariantsTakesTheNewBounds) {
  VARIANT variable = variant_array(0, 2);
  VARIANT reference = {};
  reference.vt = kVtArray | kVtVariant | kVtByRef;
  reference.pparray = &variable.parray;
  EXPECT_EQ(invoke(7, {reference}), status::kOk);
  EXPECT_EQ(variable.parray->rgsabound[0].lLbound, 1);
  EXPECT_EQ(variable.parray->rgsabound[0].cElements, 2u);
  EXPECT_EQ(Variant::copy_of(static_cast<VARIANT*>(variable.parray->pvData)[1]).text().view(),
            u"two");
  VariantClear(&variable);
}

TEST_F(LateBound, LockedArraysOfVariantsKeepTheirBounds) {
  VARIANT variable = variant_array(1, 2);
  SAFEARRAY* const before = variable.parray;
  SafeArrayLock(before);
  EXPECT_EQ(invoke(7, {reference_to(variable)}), status::kException);
  EXPECT_EQ(exception.scode, status::kRunTimeError + 10);
  EXPECT_EQ(variable.parray, before);
  SafeArrayUnlock(before);
  VariantClear(&variable);
}

TEST_F(LateBound, AnArrayIsNotResizedUnderItsOwnElement) {
  std::vector<String> texts;
  texts.emplace_back(u"element");
  SAFEARRAY* array = Array<String>::of(1, std::move(texts)).release();
  VARIANT element = {}, whole = {};
  element.vt = kVtBstr | kVtByRef;
  element.pbstrVal = static_cast<BSTR*>(array->pvData);
  whole.vt = kVtArray | kVtBstr | kVtByRef;
  whole.pparray = &array;
  EXPECT_EQ(invoke(12, {whole, element}), status::kException);
  EXPECT_EQ(exception.scode, status::kRunTimeError + 10);
  SafeArrayDestroy(array);
}

}  // namespace
}  // namespace kw::frame
