#include "kwutils/clsQSort.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "sort/description.h"
#include "support/expect_error.h"
#include "support/texts.h"

namespace kw {
namespace {

using Indexes = std::vector<std::int32_t>;
using testing::number_of;
using testing::Texts;
using testing::texts_of;

const clsQSort kSort;

template <class T>
std::vector<T> values_of(const Array<T>& array) {
  return {array.elements().begin(), array.elements().end()};
}

Array<String> strings(const Texts& texts, std::int32_t lower = 0) {
  return testing::array_of(lower, texts);
}

// The members for one element type of numbers.
template <class T>
struct Members;
template <>
struct Members<double> {
  static constexpr auto sort = &clsQSort::dQSort;
  static constexpr auto index = &clsQSort::dQSortIndex;
  static constexpr auto ascending = &clsQSort::dQSortNRAsc;
  static constexpr auto descending = &clsQSort::dQSortNRDes;
  static constexpr auto ascending_index = &clsQSort::dQSortNRAscIndex;
  static constexpr auto descending_index = &clsQSort::dQSortNRDesIndex;
};
template <>
struct Members<float> {
  static constexpr auto sort = &clsQSort::fQSort;
  static constexpr auto index = &clsQSort::fQSortIndex;
  static constexpr auto ascending = &clsQSort::fQSortNRAsc;
  static constexpr auto descending = &clsQSort::fQSortNRDes;
  static constexpr auto ascending_index = &clsQSort::fQSortNRAscIndex;
  static constexpr auto descending_index = &clsQSort::fQSortNRDesIndex;
};
template <>
struct Members<std::int16_t> {
  static constexpr auto sort = &clsQSort::iQSort;
  static constexpr auto index = &clsQSort::iQSortIndex;
  static constexpr auto ascending = &clsQSort::iQSortNRAsc;
  static constexpr auto descending = &clsQSort::iQSortNRDes;
  static constexpr auto ascending_index = &clsQSort::iQSortNRAscIndex;
  static constexpr auto descending_index = &clsQSort::iQSortNRDesIndex;
};
template <>
struct Members<std::int32_t> {
  static constexpr auto sort = &clsQSort::lQSort;
  static constexpr auto index = &clsQSort::lQSortIndex;
  static constexpr auto ascending = &clsQSort::lQSortNRAsc;
  static constexpr auto descending = &clsQSort::lQSortNRDes;
  static constexpr auto ascending_index = &clsQSort::lQSortNRAscIndex;
  static constexpr auto descending_index = &clsQSort::lQSortNRDesIndex;
};

template <class T>
class QSort : public ::testing::Test {
 protected:
  using Of = Members<T>;
  using Values = std::vector<T>;

  static Array<T> array(Values values, std::int32_t lower = 0) {
    return Array<T>::of(lower, std::move(values));
  }
};

using Numbers = ::testing::Types<double, float, std::int16_t, std::int32_t>;
TYPED_TEST_SUITE(QSort, Numbers, );

TYPED_TEST(QSort, SortsInPlace) {
  auto values = this->array({3, -1, 2});
  EXPECT_TRUE((kSort.*TestFixture::Of::sort)(values, false));
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{-1, 2, 3}));
}

TYPED_TEST(QSort, SortsDescendingWhenAsked) {
  auto values = this->array({3, -1, 2});
  EXPECT_TRUE((kSort.*TestFixture::Of::sort)(values, true));
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{3, 2, -1}));
}

TYPED_TEST(QSort, IndexGivesTheOrderAndLeavesTheValues) {
  const auto values = this->array({3, 1, 2});
  auto order = Array<std::int32_t>::of(7, {1, 2, 3, 4, 5});
  EXPECT_TRUE((kSort.*TestFixture::Of::index)(values, order, false));
  EXPECT_EQ(values_of(order), (Indexes{1, 2, 0}));
  EXPECT_EQ(order.lower(), 0);
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{3, 1, 2}));
}

TYPED_TEST(QSort, IndexGivesTheDescendingOrderWhenAsked) {
  Array<std::int32_t> order;
  EXPECT_TRUE((kSort.*TestFixture::Of::index)(this->array({3, 1, 2}), order, true));
  EXPECT_EQ(values_of(order), (Indexes{0, 2, 1}));
}

TYPED_TEST(QSort, IndexKeepsTheBoundsOfTheValues) {
  Array<std::int32_t> order;
  EXPECT_TRUE((kSort.*TestFixture::Of::index)(this->array({3, 1, 2}, 1), order, false));
  EXPECT_EQ(order.lower(), 1);
  EXPECT_EQ(values_of(order), (Indexes{2, 3, 1}));
}

TYPED_TEST(QSort, ArraysWithoutElementsAreNotSorted) {
  Array<TypeParam> never;
  auto none = this->array({});
  Array<std::int32_t> order;
  EXPECT_FALSE((kSort.*TestFixture::Of::sort)(never, false));
  EXPECT_FALSE((kSort.*TestFixture::Of::sort)(none, false));
  EXPECT_FALSE((kSort.*TestFixture::Of::index)(never, order, false));
  EXPECT_FALSE((kSort.*TestFixture::Of::index)(none, order, false));
}

TYPED_TEST(QSort, AFixedOrderArrayIsNotReplaced) {
  auto order = Array<std::int32_t>::of(0, {8, 9});
  order.get()->fFeatures |= kFeatureFixedSize;
  EXPECT_FALSE((kSort.*TestFixture::Of::index)(this->array({3, 1}), order, false));
  EXPECT_EQ(values_of(order), (Indexes{8, 9}));
  order.get()->fFeatures &= static_cast<std::uint16_t>(~kFeatureFixedSize);
}

TYPED_TEST(QSort, MembersSortOverExactlyTheBounds) {
  auto values = this->array({5, 1, 4, 2, 3}, 5);
  (kSort.*TestFixture::Of::ascending)(values);
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{1, 2, 3, 4, 5}));
  EXPECT_EQ(values.lower(), 5);
  (kSort.*TestFixture::Of::descending)(values);
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{5, 4, 3, 2, 1}));
}

TYPED_TEST(QSort, IndexMembersSwapTheOrderArrayAlong) {
  auto values = this->array({3, 1, 2}, -1);
  auto order = Array<std::int32_t>::of(-1, {-1, 0, 1});
  (kSort.*TestFixture::Of::ascending_index)(values, order);
  EXPECT_EQ(values_of(order), (Indexes{0, 1, -1}));
  (kSort.*TestFixture::Of::descending_index)(values, order);
  EXPECT_EQ(values_of(order), (Indexes{-1, 1, 0}));
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{3, 2, 1}));
}

TYPED_TEST(QSort, EqualElementsSwapTheirOrder) {
  auto values = this->array({2, 2});
  auto order = Array<std::int32_t>::of(0, {0, 1});
  (kSort.*TestFixture::Of::ascending_index)(values, order);
  EXPECT_EQ(values_of(order), (Indexes{1, 0}));
}

TYPED_TEST(QSort, MembersRaiseSubscriptErrors) {
  Array<TypeParam> never;
  auto values = this->array({3, 1});
  Array<std::int32_t> none;
  EXPECT_EQ(number_of([&] { (kSort.*TestFixture::Of::ascending)(never); }), 9);
  EXPECT_EQ(number_of([&] { (kSort.*TestFixture::Of::descending_index)(never, none); }), 9);
  EXPECT_EQ(number_of([&] { (kSort.*TestFixture::Of::ascending_index)(values, none); }), 9);
  EXPECT_EQ(values_of(values), (typename TestFixture::Values{1, 3}));
}

TYPED_TEST(QSort, MembersRaiseOverflowErrors) {
  auto values = this->array({3, 1}, INT32_MAX - 1);
  EXPECT_EQ(number_of([&] { (kSort.*TestFixture::Of::ascending)(values); }), 6);
  EXPECT_FALSE((kSort.*TestFixture::Of::sort)(values, false));
}

TEST(QSort, MiddlePositionsRoundTowardZero) {
  auto values = Array<double>::of(-2, {0, 2, 1, 1});
  auto order = Array<std::int32_t>::of(-2, {-2, -1, 0, 1});
  kSort.dQSortNRAscIndex(values, order);
  EXPECT_EQ(values_of(order), (Indexes{-2, 1, 0, -1}));
}

TEST(QSort, AnArrayThatIsToBecomeItsOwnOrderIsFilledFirst) {
  auto values = Array<std::int32_t>::of(1, {30, 10, 20});
  EXPECT_TRUE(kSort.lQSortIndex(values, values, true));
  EXPECT_EQ(values_of(values), (Indexes{3, 2, 1}));
}

TEST(QSort, StringsIgnoreCaseByDefault) {
  auto values = strings({u"b", u"A", u"c", u"B"});
  EXPECT_TRUE(kSort.sQSort(values));
  EXPECT_EQ(texts_of(values), (Texts{u"A", u"B", u"b", u"c"}));
}

TEST(QSort, StringsSortByCodeUnitWhenAsked) {
  auto values = strings({u"b", u"A", u"a", u"B"});
  EXPECT_TRUE(kSort.sQSort(values, false, 0));
  EXPECT_EQ(texts_of(values), (Texts{u"A", u"B", u"a", u"b"}));
  EXPECT_TRUE(kSort.sQSort(values, true, 0));
  EXPECT_EQ(texts_of(values), (Texts{u"b", u"a", u"B", u"A"}));
}

TEST(QSort, SortingMovesStringsAndCopiesNone) {
  auto values = strings({u"b", u"a"});
  const BSTR first = values.at(0).get();
  EXPECT_TRUE(kSort.sQSort(values));
  EXPECT_EQ(values.at(1).get(), first);
}

TEST(QSort, AStringThatWasNeverSetIsEmpty) {
  std::vector<String> elements(3);
  elements[0] = u"x";
  elements[1] = u"";
  auto values = Array<String>::of(0, std::move(elements));
  EXPECT_TRUE(kSort.sQSort(values));
  EXPECT_EQ(texts_of(values), (Texts{u"", u"", u"x"}));
}

TEST(QSort, StringMembersAndTheirOrder) {
  auto values = strings({u"b", u"A", u"c"}, 1);
  auto order = Array<std::int32_t>::of(1, {1, 2, 3});
  kSort.sQSortNRAscIndex(values, order, 1);
  EXPECT_EQ(texts_of(values), (Texts{u"A", u"b", u"c"}));
  EXPECT_EQ(values_of(order), (Indexes{2, 1, 3}));
  kSort.sQSortNRDesIndex(values, order, 0);
  EXPECT_EQ(texts_of(values), (Texts{u"c", u"b", u"A"}));
  kSort.sQSortNRAsc(values, 0);
  kSort.sQSortNRDes(values, 1);
  EXPECT_EQ(texts_of(values), (Texts{u"c", u"b", u"A"}));
}

TEST(QSort, StringIndexLeavesTheStrings) {
  const auto values = strings({u"b", u"a", u"C"});
  Array<std::int32_t> order;
  EXPECT_TRUE(kSort.sQSortIndex(values, order));
  EXPECT_EQ(values_of(order), (Indexes{1, 0, 2}));
  EXPECT_TRUE(kSort.sQSortIndex(values, order, false, 0));
  EXPECT_EQ(values_of(order), (Indexes{2, 1, 0}));
  EXPECT_EQ(texts_of(values), (Texts{u"b", u"a", u"C"}));
}

TEST(QSort, OtherCompareMethodsAreInvalidArguments) {
  auto values = strings({u"b", u"a"});
  Array<std::int32_t> order;
  EXPECT_EQ(number_of([&] { kSort.sQSortNRAsc(values, 2); }), 5);
  EXPECT_EQ(number_of([&] { kSort.sQSortNRDesIndex(values, order, -1); }), 5);
  EXPECT_FALSE(kSort.sQSort(values, false, 2));
  EXPECT_FALSE(kSort.sQSortIndex(values, order, false, 2));
  EXPECT_EQ(texts_of(values), (Texts{u"b", u"a"}));
}

TEST(QSort, WithoutStringsTheCompareMethodIsNotLookedAt) {
  Array<String> never;
  EXPECT_EQ(number_of([&] { kSort.sQSortNRAsc(never, 2); }), 9);
}

TEST(QSort, ThirtyMethodsHaveTheirPublishedNumbers) {
  const auto& methods = clsQSort_table().description().methods;
  ASSERT_EQ(methods.size(), 30u);
  const auto number = [&](std::size_t k) { return methods[k].id - frame::kFirstMember; };
  for (std::size_t k = 0; k < 14; ++k) EXPECT_EQ(number(k), static_cast<DISPID>(k));
  for (std::size_t k = 14; k < 30; ++k) EXPECT_EQ(number(k), static_cast<DISPID>(k + 5));
  EXPECT_EQ(methods.back().name, "sQSortNRDesIndex");
}

}  // namespace
}  // namespace kw
