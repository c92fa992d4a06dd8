// Whether the automation functions gave back all texts and arrays of a stretch of a test.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/linux/automation/live_counts.h"

namespace kw::test {

struct LiveCounts {
  std::int64_t strings = 0;
  std::int64_t arrays = 0;

  LiveCounts() { KwAutomationLiveCounts(&strings, &arrays); }
};

// A fixture whose tests fail when they leave a text or an array behind.
class LeakCheckedTest : public testing::Test {
 protected:
  void TearDown() override {
    const LiveCounts after;
    EXPECT_EQ(after.strings, before_.strings) << "texts left behind";
    EXPECT_EQ(after.arrays, before_.arrays) << "arrays left behind";
  }

 private:
  LiveCounts before_;
};

}  // namespace kw::test
