#include "kwutils/variant.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/expect_error.h"

namespace kw {
namespace {

using testing::error_of;

TEST(Variant, MissingIsNotEmptyAndHasNoText) {
  const Variant missing = Variant::missing();
  EXPECT_TRUE(missing.is_missing());
  EXPECT_FALSE(missing.is_empty());
  EXPECT_THROW(missing.text(), Error);
}

TEST(Variant, ReadsThroughReferences) {
  std::int32_t number = 42;
  VARIANT inner = {};
  inner.vt = kVtI4 | kVtByRef;
  inner.plVal = &number;
  Variant outer;
  outer.address()->vt = kVtVariant | kVtByRef;
  outer.address()->pvarVal = &inner;
  EXPECT_EQ(outer.to_int32(), 42);
  EXPECT_EQ(outer.text().view(), u"42");
}

TEST(Variant, NumbersRoundHalvesToEven) {
  EXPECT_EQ(Variant(2.5).to_int32(), 2);
  EXPECT_EQ(Variant(3.5).to_int16(), 4);
}

TEST(Variant, TruthReadsAsAWord) { EXPECT_EQ(Variant(Boolean(true)).text().view(), u"True"); }

TEST(Variant, OverflowAndMismatchAreErrorsOfTheirOwn) {
  EXPECT_EQ(error_of([] { Variant(40000.0).to_int16(); }).number, ErrorNumber::overflow);
  EXPECT_EQ(error_of([] { Variant(u"pump").to_int32(); }).number, ErrorNumber::type_mismatch);
}

TEST(Variant, WhatIsNoNumberIsNoWholeOne) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(error_of([&] { Variant(nan).to_int32(); }).number, ErrorNumber::overflow);
  EXPECT_EQ(error_of([&] { Variant(static_cast<float>(nan)).to_int16(); }).number,
            ErrorNumber::overflow);
}

TEST(Variant, StoreWritesIntoTheVariableReferredTo) {
  BSTR variable = SysAllocString(u"old");
  Variant reference;
  reference.address()->vt = kVtBstr | kVtByRef;
  reference.address()->pbstrVal = &variable;
  reference.store(String(u"new"));
  EXPECT_EQ(std::u16string_view(variable), u"new");
  SysFreeString(variable);
}

}  // namespace
}  // namespace kw
