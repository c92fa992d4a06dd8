// The tests of the faults themselves: a fault that never strikes would prove nothing.
#include "fault/fault_plan.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <set>

#include "kwutils/error.h"
#include "platform/temporary_folder.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;
using platform::system_calls;

// Opens, writes twice four bytes, closes, all without any care; reports a failed call.
bool write_carelessly(const std::string& path) {
  const int file = system_calls().open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  bool good = file >= 0;
  good = system_calls().write(file, "abcd", 4) == 4 && good;
  good = system_calls().write(file, "efgh", 4) == 4 && good;
  return system_calls().close(file) == 0 && good;
}

class FaultPlan : public ::testing::Test {
 protected:
  bool operation() { return write_carelessly((folder_ / "a").string()); }
  const Step prepare_ = [this] { folder_.clear(); };
  const Operation operation_ = [this] { return operation(); };
  TemporaryFolder folder_;
};

TEST_F(FaultPlan, CountsTheCalls) { EXPECT_EQ(count_calls(prepare_, operation_), 4u); }

TEST_F(FaultPlan, EveryCallFailsOnceWithEachError) {
  std::set<std::string> once;
  inject_everywhere(prepare_, operation_, [&](const Outcome& run) {
    EXPECT_TRUE(run.reported) << run.description;
    if (run.fault.repeat != Repeat::once || run.fault.kind != Kind::error) return;
    once.insert(std::to_string(run.fault.error) + run.call + std::to_string(run.fault.call));
  });
  EXPECT_EQ(once.size(), 4u * 4u);
}

TEST_F(FaultPlan, AFailingWriteWritesNothingAndTheNextOneIsGoodAgain) {
  EXPECT_TRUE(
      inject({Kind::error, ENOSPC, Repeat::once, 2}, prepare_, operation_, [&](const Outcome& run) {
        EXPECT_EQ(run.call, "write");
        EXPECT_EQ(folder_.read("a"), "efgh");
      }));
}

TEST_F(FaultPlan, CallsOfTheSameNameGoOnFailing) {
  EXPECT_TRUE(inject({Kind::error, ENOSPC, Repeat::same_call, 2}, prepare_, operation_,
                     [&](const Outcome&) { EXPECT_EQ(folder_.read("a"), ""); }));
}

TEST_F(FaultPlan, AShortWriteTakesHalf) {
  EXPECT_TRUE(inject({Kind::short_write, 0, Repeat::once, 2}, prepare_, operation_,
                     [&](const Outcome&) { EXPECT_EQ(folder_.read("a"), "abefgh"); }));
}

TEST_F(FaultPlan, BeyondTheLastCallNothingIsInjected) {
  EXPECT_FALSE(inject({Kind::error, EIO, Repeat::once, 5}, prepare_, operation_,
                      [](const Outcome&) { ADD_FAILURE(); }));
}

TEST_F(FaultPlan, TheErrorThatWasThrownIsHandedOn) {
  EXPECT_TRUE(inject(
      {Kind::error, EIO, Repeat::once, 1}, prepare_,
      [&]() -> bool {
        if (!operation()) throw Error(ErrorNumber::io_error);
        return true;
      },
      [](const Outcome& run) { EXPECT_EQ(run.error, 57); }));
}

TEST_F(FaultPlan, AChildIsKilledBeforeEachCallAndInEachWrite) {
  std::multiset<std::string> left;
  const std::size_t killed = kill_everywhere(prepare_, operation_, [&](const Outcome&) {
    left.insert(folder_.list().empty() ? "nothing" : folder_.read("a"));
  });
  EXPECT_EQ(killed, 6u);
  EXPECT_EQ(left, (std::multiset<std::string>{"nothing", "", "ab", "abcd", "abcdef", "abcdefgh"}));
}

}  // namespace
}  // namespace kw::fault
