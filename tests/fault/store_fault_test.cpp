// Every system call of every writing method of the store goes wrong, in every way, one run for
// each. Whatever happens, the file is the whole old or the whole new one, and a method that did not
// report a failure has done its work.
#include <gtest/gtest.h>

#include <iostream>

#include "fault/fault_plan.h"
#include "fault/store_writers.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;
namespace fs = std::filesystem;

const std::string kRows = "1 2 <\r\n; a comment\r\n3 4 <\r\n";

class StoreFaults : public ::testing::TestWithParam<StoreWriter> {
 protected:
  void SetUp() override {
    prepare();
    ASSERT_TRUE(GetParam().call(folder_));
    new_content_ = folder_.read("a.ent");
    ASSERT_FALSE(is_old());
  }

  bool is_missing_at_first() const { return GetParam().old_content.empty(); }

  void prepare() {
    folder_.clear();
    folder_.write("rows.txt", kRows);
    if (!is_missing_at_first()) folder_.write("a.ent", GetParam().old_content);
  }

  bool is_old() const {
    const bool there = fs::exists(folder_ / "a.ent");
    if (is_missing_at_first()) return !there;
    return there && folder_.read("a.ent") == GetParam().old_content;
  }
  bool is_new() const {
    return fs::exists(folder_ / "a.ent") && folder_.read("a.ent") == new_content_;
  }

  void check(const Outcome& run) {
    SCOPED_TRACE(run.description);
    EXPECT_TRUE(is_old() || is_new());
    EXPECT_TRUE(run.reported || is_new());
    EXPECT_EQ(run.reported, !is_passing(run.fault) && !is_recovered(run));
    EXPECT_EQ(folder_.read("rows.txt"), kRows);
    check_next_writer();
  }

  // A missing file counts as missing whether or not its folder can be looked at; a file that was
  // only read has nothing to lose when it is closed.
  static bool is_recovered(const Outcome& run) {
    return !run.reported && (run.call == "stat" || (run.call == "close" && is_alone(run)));
  }
  static bool is_alone(const Outcome& run) { return run.fault.repeat == Repeat::once; }

  // A temporary file that was left may not stand in the next writer's way.
  void check_next_writer() {
    if (!fs::exists(folder_ / "a.tmp")) return;
    FaultyCalls without_faults;
    const platform::ScopedSystemCalls in_use(without_faults);
    if (!is_missing_at_first()) folder_.write("a.ent", GetParam().old_content);
    EXPECT_TRUE(GetParam().call(folder_));
  }

  TemporaryFolder folder_;
  std::string new_content_;
};

TEST_P(StoreFaults, LeaveTheOldOrTheNewFileAndAreReported) {
  const std::size_t faults =
      inject_everywhere([&] { prepare(); }, [&] { return GetParam().call(folder_); },
                        [&](const Outcome& run) { check(run); });
  std::cout << faults << " faults injected (" << GetParam() << ")\n";
  EXPECT_GT(faults, 100u);
}

TEST_P(StoreFaults, KilledAnywhereTheOldOrTheNewFileIsThere) {
  const std::size_t kills =
      kill_everywhere([&] { prepare(); }, [&] { return GetParam().call(folder_); },
                      [&](const Outcome& run) {
                        SCOPED_TRACE(run.description);
                        EXPECT_TRUE(is_old() || is_new());
                        EXPECT_EQ(folder_.read("rows.txt"), kRows);
                        check_next_writer();
                      });
  std::cout << "killed " << kills << " times (" << GetParam() << ")\n";
  EXPECT_GT(kills, 10u);
}

INSTANTIATE_TEST_SUITE_P(Writers, StoreFaults, ::testing::ValuesIn(store_writers()),
                         [](const auto& writer) { return writer.param.name; });

}  // namespace
}  // namespace kw::fault
