// The examples of clsQSort.h.
#include "headers/example_values.h"
#include "kwutils/clsQSort.h"

namespace kw {
namespace {

TEST(SortingExamples, AreTrue) {
  kw::clsQSort sort;
  auto values = kw::Array<double>::of(0, {3, 1, 2});
  kw::Array<std::int32_t> order;
  EXPECT_EQ(sort.dQSortIndex(values, order), true);
  EXPECT_EQ(listed(order), "1, 2, 0");
  EXPECT_EQ(listed(values), "3, 1, 2");
  EXPECT_EQ(sort.dQSort(values), true);
  EXPECT_EQ(listed(values), "1, 2, 3");

  kw::Array<kw::String> names;
  names.redim(1, 2);
  names.at(1) = u"a";
  names.at(2) = u"B";
  EXPECT_EQ(sort.sQSort(names, false, 0), true);
  EXPECT_EQ(listed(names), "B, a");
  EXPECT_EQ(sort.sQSort(names), true);
  EXPECT_EQ(listed(names), "a, B");
  EXPECT_EQ(sort.sQSortIndex(names, order, true), true);
  EXPECT_EQ(listed(order), "2, 1");

  auto levels = kw::Array<std::int32_t>::of(1, {20, 30, 10});
  auto places = kw::Array<std::int32_t>::of(1, {1, 2, 3});
  sort.lQSortNRAscIndex(levels, places);
  EXPECT_EQ(listed(levels), "10, 20, 30");
  EXPECT_EQ(listed(places), "3, 1, 2");
  sort.lQSortNRDes(levels);
  EXPECT_EQ(listed(levels), "30, 20, 10");
}

}  // namespace
}  // namespace kw
