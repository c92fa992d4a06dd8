#include "sort/work_array.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/large_pages.h"
#include "sort/failing_memory.h"

namespace kw::sort {
namespace {

TEST(WorkArray, HasRoomForItsElements) {
  const WorkArray<std::int32_t> small(3);
  ASSERT_TRUE(small);
  small.data()[0] = 1;
  small.data()[2] = 3;
  EXPECT_EQ(small.data()[0] + small.data()[2], 4);
}

TEST(WorkArray, LargeOnesBeginALargePage) {
  constexpr std::size_t kCount = 5'000'000;
  const WorkArray<double> large(kCount);
  ASSERT_TRUE(large);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(large.data()) % platform::kLargePage, 0u);
  large.data()[kCount - 1] = 1;
  EXPECT_EQ(large.data()[kCount - 1], 1);
}

TEST(WorkArray, IsFalseWithoutMemory) {
  const NoWorkMemory none;
  EXPECT_FALSE(WorkArray<double>(10));
  EXPECT_FALSE(WorkArray<double>(10'000'000));
}

TEST(WorkArray, IsFalseForMoreThanThereCanBe) { EXPECT_FALSE(WorkArray<double>(SIZE_MAX / 2)); }

}  // namespace
}  // namespace kw::sort
