// Changes of type as a table: each kind of source against each kind of result.
#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "kwutils/automation.h"
#include "platform/automation_leaks.h"
#include "platform/automation_object.h"

namespace kw {
namespace {

using test::reference_to;
using test::variant_of;

std::string ascii(BSTR text) { return std::string(text, text + SysStringLen(text)); }

// A value as a short text: "mismatch", "overflow", "bad type", a number, or a quoted text.
std::string show(HRESULT result, const VARIANT& value) {
  if (result == status::kTypeMismatch) return "mismatch";
  if (result == status::kOverflow) return "overflow";
  if (result == status::kBadVariableType) return "bad type";
  if (result == status::kInvalidArgument) return "invalid";
  std::ostringstream text;
  text.precision(17);
  switch (value.vt) {
    case kVtI1:
      text << int{value.cVal};
      break;
    case kVtI2:
    case kVtBool:
      text << value.iVal;
      break;
    case kVtI4:
    case kVtInt:
    case kVtError:
      text << value.lVal;
      break;
    case kVtUi1:
      text << unsigned{value.bVal};
      break;
    case kVtUi2:
      text << value.uiVal;
      break;
    case kVtUi4:
    case kVtUint:
      text << value.ulVal;
      break;
    case kVtR4:
      text << value.fltVal;
      break;
    case kVtR8:
      text << value.dblVal;
      break;
    case kVtBstr:
      text << '"' << ascii(value.bstrVal) << '"';
      break;
    default:
      text << "kind " << value.vt;
  }
  return text.str();
}

std::string change(const VARIANT& source, VARTYPE kind, std::uint16_t flags = 0) {
  VARIANT target{};
  const HRESULT result = VariantChangeType(&target, &source, flags, kind);
  EXPECT_EQ(target.vt, succeeded(result) ? kind : VARTYPE{kVtEmpty});
  const std::string shown = show(result, target);
  VariantClear(&target);
  return shown;
}

// Changes and ends the source.
std::string change_once(VARIANT source, VARTYPE kind, std::uint16_t flags = 0) {
  const std::string shown = change(source, kind, flags);
  VariantClear(&source);
  return shown;
}

VARIANT of_kind(VARTYPE kind, std::uint64_t bits = 0) {
  VARIANT made{};
  made.vt = kind;
  made.ullVal = bits;
  return made;
}

class AutomationChangeType : public test::LeakCheckedTest {};

constexpr VARTYPE kWholeKinds[] = {kVtI1, kVtI2, kVtI4, kVtInt, kVtUi1, kVtUi2, kVtUi4, kVtUint};

TEST_F(AutomationChangeType, OfWholeNumbersKeepsWhatFits) {
  struct Row {
    VARIANT source;
    // I1, I2, I4, INT, UI1, UI2, UI4, UINT
    std::vector<std::string> expected;
  };
  const std::string over = "overflow";
  const Row rows[] = {
      {of_kind(kVtI2, 0xFFFF), {"-1", "-1", "-1", "-1", over, over, over, over}},
      {of_kind(kVtI1, 0x80), {"-128", "-128", "-128", "-128", over, over, over, over}},
      {variant_of(127), {"127", "127", "127", "127", "127", "127", "127", "127"}},
      {variant_of(128), {over, "128", "128", "128", "128", "128", "128", "128"}},
      {of_kind(kVtUi1, 255), {over, "255", "255", "255", "255", "255", "255", "255"}},
      {variant_of(256), {over, "256", "256", "256", over, "256", "256", "256"}},
      {of_kind(kVtUi2, 65535), {over, over, "65535", "65535", over, "65535", "65535", "65535"}},
      {variant_of(65536), {over, over, "65536", "65536", over, over, "65536", "65536"}},
      {of_kind(kVtUi4, 0xFFFFFFFF),
       {over, over, over, over, over, over, "4294967295", "4294967295"}},
  };
  for (const auto& [source, expected] : rows) {
    for (std::size_t i = 0; i < std::size(kWholeKinds); ++i) {
      EXPECT_EQ(change(source, kWholeKinds[i]), expected[i])
          << "kind " << source.vt << " to kind " << kWholeKinds[i];
    }
  }
}

TEST_F(AutomationChangeType, RoundsHalvesToTheEvenNeighbour) {
  const struct {
    double number;
    const char* expected;
  } cases[] = {{0.5, "0"},   {1.5, "2"},   {2.5, "2"},     {-0.5, "0"},
               {-1.5, "-2"}, {-2.5, "-2"}, {2.500001, "3"}};
  for (const auto& [number, expected] : cases) {
    EXPECT_EQ(change(variant_of(number), kVtI2), expected) << number;
    EXPECT_EQ(change(variant_of(number), kVtI4), expected) << number;
    EXPECT_EQ(change(variant_of(static_cast<float>(number)), kVtI4), expected) << number;
  }
}

TEST_F(AutomationChangeType, OverflowsJustBeyondTheRange) {
  EXPECT_EQ(change(variant_of(32767.49), kVtI2), "32767");
  EXPECT_EQ(change(variant_of(32767.5), kVtI2), "overflow");
  EXPECT_EQ(change(variant_of(-32768.5), kVtI2), "-32768");
  EXPECT_EQ(change(variant_of(-32768.6), kVtI2), "overflow");
  EXPECT_EQ(change(variant_of(2147483647.49), kVtI4), "2147483647");
  EXPECT_EQ(change(variant_of(2147483647.5), kVtI4), "overflow");
  EXPECT_EQ(change(variant_of(-0.5), kVtUi1), "0");
  EXPECT_EQ(change(variant_of(-0.6), kVtUi1), "overflow");
  EXPECT_EQ(change(variant_of(255.5), kVtUi1), "overflow");
}

TEST_F(AutomationChangeType, OfWhatIsNoFiniteNumberOverflows) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double number : {infinity, -infinity, std::nan(""), 1e300}) {
    for (const VARTYPE kind : kWholeKinds) {
      EXPECT_EQ(change(variant_of(number), kind), "overflow") << number << ' ' << kind;
    }
  }
}

TEST_F(AutomationChangeType, BetweenSingleAndDouble) {
  EXPECT_EQ(change(variant_of(0.1f), kVtR8), "0.10000000149011612");
  EXPECT_EQ(change(variant_of(0.5), kVtR4), "0.5");
  EXPECT_EQ(change(variant_of(1e39), kVtR4), "overflow");
  EXPECT_EQ(change(variant_of(-1e39), kVtR4), "overflow");
  EXPECT_EQ(change(variant_of(7), kVtR4), "7");
  EXPECT_EQ(change(of_kind(kVtUi4, 4000000000), kVtR8), "4000000000");
}

TEST_F(AutomationChangeType, OfNumbersToText) {
  EXPECT_EQ(change(of_kind(kVtI1, 0xFF), kVtBstr), "\"-1\"");
  EXPECT_EQ(change(of_kind(kVtI2, 0x8000), kVtBstr), "\"-32768\"");
  EXPECT_EQ(change(variant_of(-70000), kVtBstr), "\"-70000\"");
  EXPECT_EQ(change(of_kind(kVtUi1, 255), kVtBstr), "\"255\"");
  EXPECT_EQ(change(of_kind(kVtUi2, 65535), kVtBstr), "\"65535\"");
  EXPECT_EQ(change(of_kind(kVtUi4, 0xFFFFFFFF), kVtBstr), "\"4294967295\"");
  EXPECT_EQ(change(of_kind(kVtUint, 0xFFFFFFFF), kVtBstr), "\"4294967295\"");
  EXPECT_EQ(change(variant_of(0.1f), kVtBstr), "\"0.1\"");
  EXPECT_EQ(change(variant_of(1e300), kVtBstr), "\"1E+300\"");
  EXPECT_EQ(change(variant_of(-2.5), kVtBstr), "\"-2.5\"");
}

TEST_F(AutomationChangeType, OfTextToNumbers) {
  EXPECT_EQ(change_once(variant_of(u" 12.5 "), kVtI2), "12");
  EXPECT_EQ(change_once(variant_of(u" 12.5 "), kVtI4), "12");
  EXPECT_EQ(change_once(variant_of(u" 12.5 "), kVtR8), "12.5");
  EXPECT_EQ(change_once(variant_of(u"-1e2"), kVtR4), "-100");
  EXPECT_EQ(change_once(variant_of(u"40000"), kVtI2), "overflow");
  EXPECT_EQ(change_once(variant_of(u"-1"), kVtUi2), "overflow");
  EXPECT_EQ(change_once(variant_of(u"1e400"), kVtR8), "overflow");
  EXPECT_EQ(change_once(variant_of(u"1e39"), kVtR4), "overflow");
}

TEST_F(AutomationChangeType, OfTextThatIsNoNumberDoesNotMatch) {
  for (const char16_t* const text : {u"", u" ", u"12abc", u"True", u"#TRUE#", u"nan", u"&H10"}) {
    for (const VARTYPE kind : kWholeKinds) {
      EXPECT_EQ(change_once(variant_of(text), kind), "mismatch") << kind;
    }
    EXPECT_EQ(change_once(variant_of(text), kVtR8), "mismatch");
  }
  EXPECT_EQ(change(of_kind(kVtBstr), kVtI2), "mismatch") << "the null text";
}

TEST_F(AutomationChangeType, OfTextToBoolean) {
  const struct {
    const char16_t* text;
    const char* expected;
  } cases[] = {{u"True", "-1"},        {u"tRUE", "-1"},        {u"FALSE", "0"},
               {u"#TRUE#", "-1"},      {u"#FALSE#", "0"},      {u"#True#", "mismatch"},
               {u" 12.5 ", "-1"},      {u"0.0", "0"},          {u"", "mismatch"},
               {u" true", "mismatch"}, {u"1e400", "overflow"}, {u"yes", "mismatch"}};
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(change_once(variant_of(text), kVtBool), expected);
  }
}

TEST_F(AutomationChangeType, OfBooleanToText) {
  EXPECT_EQ(change(variant_of(true), kVtBstr), "\"-1\"");
  EXPECT_EQ(change(variant_of(false), kVtBstr), "\"0\"");
  EXPECT_EQ(change(variant_of(true), kVtBstr, kChangeAlphaBool), "\"True\"");
  EXPECT_EQ(change(variant_of(false), kVtBstr, kChangeAlphaBool), "\"False\"");
  EXPECT_EQ(change(variant_of(true), kVtBstr, kChangeLocalBool), "\"True\"");
}

TEST_F(AutomationChangeType, OfBooleanToNumbers) {
  const std::string expected[] = {"-1",  "-1",    "-1",         "-1",
                                  "255", "65535", "4294967295", "4294967295"};
  for (std::size_t i = 0; i < std::size(kWholeKinds); ++i) {
    EXPECT_EQ(change(variant_of(true), kWholeKinds[i]), expected[i]);
    EXPECT_EQ(change(variant_of(false), kWholeKinds[i]), "0");
  }
  EXPECT_EQ(change(variant_of(true), kVtR8), "-1");
}

TEST_F(AutomationChangeType, OfNumbersToBoolean) {
  EXPECT_EQ(change(variant_of(0), kVtBool), "0");
  EXPECT_EQ(change(variant_of(-7), kVtBool), "-1");
  EXPECT_EQ(change(variant_of(0.1), kVtBool), "-1");
  EXPECT_EQ(change(variant_of(-0.0), kVtBool), "0");
}

TEST_F(AutomationChangeType, OfEmptyGivesZeroAndTheEmptyText) {
  for (const VARTYPE kind : kWholeKinds) EXPECT_EQ(change(of_kind(kVtEmpty), kind), "0");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtR4), "0");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtR8), "0");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtBool), "0");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtBstr), "\"\"");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtError), "mismatch");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtDispatch), "mismatch");
}

TEST_F(AutomationChangeType, OfNullErrorAndUnsupportedKindsDoesNotMatch) {
  for (const VARTYPE source : {kVtNull, kVtError, kVtCy, kVtDate, kVtDecimal, kVtI8}) {
    for (const VARTYPE kind : {kVtI2, kVtI4, kVtR4, kVtR8, kVtBstr, kVtBool, kVtUi1}) {
      EXPECT_EQ(change(of_kind(source), kind), "mismatch") << source << ' ' << kind;
    }
  }
}

TEST_F(AutomationChangeType, ToUnsupportedKindsDoesNotMatch) {
  const int kinds[] = {kVtError,    kVtCy,      kVtDate,    kVtDecimal,       kVtI8,
                       kVtDispatch, kVtUnknown, kVtVariant, kVtByRef | kVtI2, kVtArray | kVtI4};
  for (const int kind : kinds) {
    EXPECT_EQ(change(variant_of(1), static_cast<VARTYPE>(kind)), "mismatch") << kind;
  }
  EXPECT_EQ(change(variant_of(1), 77), "bad type");
  EXPECT_EQ(change(of_kind(77), kVtI2), "bad type");
}

TEST_F(AutomationChangeType, ToItsOwnKindIsACopy) {
  EXPECT_EQ(change_once(variant_of(u"abc"), kVtBstr), "\"abc\"");
  EXPECT_EQ(change(of_kind(kVtError, 5), kVtError), "5");
  EXPECT_EQ(change(of_kind(kVtDate), kVtDate), "kind 7");
  EXPECT_EQ(change(of_kind(kVtInt, 7), kVtI4), "7");
  EXPECT_EQ(change(of_kind(kVtUi4, 7), kVtUint), "7");
}

TEST_F(AutomationChangeType, ToEmptyAndNullLosesTheValue) {
  EXPECT_EQ(change_once(variant_of(u"abc"), kVtEmpty), "kind 0");
  EXPECT_EQ(change_once(variant_of(u"abc"), kVtNull), "kind 1");
  EXPECT_EQ(change(of_kind(kVtEmpty), kVtNull), "kind 1");
  EXPECT_EQ(change(of_kind(kVtNull), kVtEmpty), "mismatch");
  EXPECT_EQ(change(of_kind(kVtError), kVtNull), "mismatch");
}

TEST_F(AutomationChangeType, FollowsReferences) {
  std::int16_t number = 7;
  EXPECT_EQ(change(reference_to(kVtI2, &number), kVtBstr), "\"7\"");
  VARIANT inner = reference_to(kVtI2, &number);
  EXPECT_EQ(change(reference_to(kVtVariant, &inner), kVtI2), "7");
  EXPECT_EQ(change(reference_to(kVtI2, nullptr), kVtI2), "invalid");
}

TEST_F(AutomationChangeType, InPlaceEndsTheOldValue) {
  VARIANT value = variant_of(u"12");
  EXPECT_EQ(VariantChangeType(&value, &value, 0, kVtI4), status::kOk);
  EXPECT_EQ(value.lVal, 12);
}

TEST_F(AutomationChangeType, ThatFailsLeavesTheTarget) {
  VARIANT value = variant_of(u"abc");
  EXPECT_EQ(VariantChangeType(&value, &value, 0, kVtI4), status::kTypeMismatch);
  EXPECT_EQ(value.vt, kVtBstr);
  EXPECT_EQ(ascii(value.bstrVal), "abc");
  VariantClear(&value);
}

TEST_F(AutomationChangeType, OfAnArrayIsACopyOrNothing) {
  VARIANT array{};
  array.vt = kVtArray | kVtI2;
  array.parray = SafeArrayCreateVector(kVtI2, 0, 1);
  EXPECT_EQ(change(array, kVtArray | kVtI2), "kind 8194");
  EXPECT_EQ(change(array, kVtBstr), "mismatch");
  EXPECT_EQ(change(array, kVtEmpty), "mismatch");
  VariantClear(&array);
}

TEST_F(AutomationChangeType, OfAnObjectReadsItsDefaultValue) {
  VARIANT text = variant_of(u"12.5");
  test::ValueObject object(text);
  EXPECT_EQ(change_once(variant_of(&object), kVtBstr), "\"12.5\"");
  EXPECT_EQ(change_once(variant_of(&object), kVtI4), "12");
  EXPECT_EQ(object.reads, 2u);
  EXPECT_EQ(object.references, 1u);
  VariantClear(&text);
}

TEST_F(AutomationChangeType, OfAnObjectCanBeForbiddenToReadIt) {
  test::ValueObject object(variant_of(5));
  EXPECT_EQ(change_once(variant_of(&object), kVtI4, kChangeNoValueProperty), "mismatch");
  EXPECT_EQ(object.reads, 0u);
}

TEST_F(AutomationChangeType, OfAnObjectWithoutDefaultValueDoesNotMatch) {
  test::ValueObject object;
  EXPECT_EQ(change_once(variant_of(&object), kVtBstr), "mismatch");
  EXPECT_EQ(change(of_kind(kVtDispatch), kVtBstr), "bad type") << "no object at all";
}

TEST_F(AutomationChangeType, OfAnObjectWhoseValueIsAnObjectReadsOn) {
  test::ValueObject inner(variant_of(5));
  VARIANT held = variant_of(&inner);
  test::ValueObject outer(held);
  EXPECT_EQ(change_once(variant_of(&outer), kVtI2), "5");
  VariantClear(&held);
  EXPECT_EQ(inner.references, 1u);
}

TEST_F(AutomationChangeType, OfAnObjectThatIsItsOwnValueEnds) {
  test::ValueObject object;
  VARIANT itself = of_kind(kVtDispatch);
  itself.pdispVal = &object;
  object.set_value(itself);
  EXPECT_EQ(change(itself, kVtI2), "mismatch");
  EXPECT_EQ(object.references, 1u);
}

TEST_F(AutomationChangeType, BetweenTheInterfacesOfAnObject) {
  test::ValueObject object;
  VARIANT held = variant_of(&object);
  VARIANT unknown{};
  EXPECT_EQ(VariantChangeType(&unknown, &held, 0, kVtUnknown), status::kOk);
  EXPECT_EQ(object.references, 3u);
  VARIANT dispatch{};
  EXPECT_EQ(VariantChangeType(&dispatch, &unknown, 0, kVtDispatch), status::kOk);
  EXPECT_EQ(dispatch.pdispVal, &object);
  EXPECT_EQ(change(unknown, kVtI2), "mismatch");
  for (VARIANT* const value : {&held, &unknown, &dispatch}) VariantClear(value);
  EXPECT_EQ(object.references, 1u);
  EXPECT_EQ(change(of_kind(kVtUnknown), kVtDispatch), "kind 9") << "no object at all";
}

TEST_F(AutomationChangeType, OfNullPointersIsInvalid) {
  VARIANT value{};
  EXPECT_EQ(VariantChangeType(nullptr, &value, 0, kVtI2), status::kInvalidArgument);
  EXPECT_EQ(VariantChangeType(&value, nullptr, 0, kVtI2), status::kInvalidArgument);
  EXPECT_EQ(VariantChangeTypeEx(nullptr, &value, 0x0409, 0, kVtI2), status::kInvalidArgument);
}

}  // namespace
}  // namespace kw
