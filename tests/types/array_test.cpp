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
