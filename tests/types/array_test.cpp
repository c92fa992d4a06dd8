#include "kwutils/array.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"

namespace kw {
namespace {

using testing::number_of;

TEST(Array, NeverDimensionedHasNoBounds) {
  Array<String> array;
  EXPECT_FALSE(array.dimensioned());
  EXPECT_EQ(number_of([&] { array.lower(); }), 9);
  EXPECT_EQ(number_of([&] { array.at(0); }), 9);
  EXPECT_TRUE(array.elements().empty());
}

TEST(Array, RedimDropsContentsAndPreserveKeepsThem) {
  Array<std::int32_t> array;
  array.redim(1, 3);
  array.at(2) = 7;
  array.redim_preserve(1, 5);
  EXPECT_EQ(array.at(2), 7);
  EXPECT_EQ(array.upper(), 5);
  array.redim(1, 3);
  EXPECT_EQ(array.at(2), 0);
}

TEST(Array, PreserveCannotMoveTheLowerBound) {
  Array<std::int32_t> array;
  array.redim(1, 3);
  EXPECT_EQ(number_of([&] { array.redim_preserve(0, 3); }), 9);
  EXPECT_EQ(array.lower(), 1);
}

TEST(Array, UpperBoundBelowLowerIsRefused) {
  Array<double> array;
  EXPECT_EQ(number_of([&] { array.redim(1, 0); }), 9);
  EXPECT_FALSE(array.dimensioned());
}

TEST(Array, AbsurdSizesAreLackOfMemory) {
  Array<double> array;
  EXPECT_EQ(number_of([&] { array.redim(-2147483647, 2147483647); }), 7);
}

// Its bytes would be a number that 32 bits cannot hold: a little more than nothing in them.
TEST(Array, SizesBeyondTheCountOfBytesAreLackOfMemory) {
  constexpr std::int32_t kMost = static_cast<std::int32_t>((std::int64_t{1} << 32) / sizeof(BSTR));
  Array<String> array;
  EXPECT_EQ(number_of([&] { array.redim(1, kMost); }), 7);
  EXPECT_FALSE(array.dimensioned());
  array.redim(1, 2);
  EXPECT_EQ(number_of([&] { array.redim_preserve(1, kMost + 2); }), 7);
  EXPECT_EQ(array.size(), 2u);
}

TEST(Array, LockedArraysKeepTheirBounds) {
  Array<String> array;
  array.redim(0, 1);
  SafeArrayLock(array.get());
  EXPECT_EQ(number_of([&] { array.redim(0, 2); }), 10);
  EXPECT_EQ(number_of([&] { array.publish(0, {}); }), 10);
  array.at(1) = u"kept";
  SafeArrayUnlock(array.get());
  EXPECT_EQ(array.at(1).view(), u"kept");
}

TEST(Array, PublishGivesExactBoundsAndEmptyArrays) {
  std::vector<String> values;
  values.emplace_back(u"a");
  Array<String> array = Array<String>::of(1, std::move(values));
  EXPECT_EQ(array.lower(), 1);
  EXPECT_EQ(array.upper(), 1);
  array.publish(1, {});
  EXPECT_EQ(array.upper(), 0);
  EXPECT_EQ(number_of([&] { array.at(1); }), 9);
}

TEST(Array, OtherElementKindsAreATypeMismatch) {
  Array<std::int32_t> numbers;
  numbers.redim(0, 1);
  Array<float> singles = Array<float>::attach(numbers.release());
  EXPECT_EQ(number_of([&] { singles.at(0); }), 13);
}

TEST(Array, TwoDimensionsCanBeReplacedButNotRead) {
  SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
  Array<std::int32_t> array = Array<std::int32_t>::attach(SafeArrayCreate(kVtI4, 2, bounds));
  EXPECT_EQ(number_of([&] { array.at(0); }), 9);
  EXPECT_EQ(number_of([&] { array.redim_preserve(0, 3); }), 9);
  array.redim(0, 3);
  EXPECT_EQ(array.upper(), 3);
}

}  // namespace
}  // namespace kw
