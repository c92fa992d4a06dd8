// Every system call goes wrong while a table is read that is too long for memory and goes to a
// file. The entity file is only read, and a call that did not report a failure has stored every
// row.
#include <gtest/gtest.h>

#include <iostream>

#include "fault/fault_plan.h"
#include "kwutils/clsFileReadWrite.h"
#include "platform/temporary_folder.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;

class TableSpillFaults : public ::testing::Test {
 protected:
  TableSpillFaults() {
    for (int i = 0; i < kRows; ++i) rows_ += std::to_string(i) + std::string(500, '1') + " <\r\n";
    entity_ = "LINK link\r\nNODE id '7' TBLE\r\n" + rows_ + "tble node\r\n";
  }

  void prepare() {
    folder_.clear();
    folder_.write("a.ent", entity_);
    folder_.write("rows.txt", "left behind");
  }

  bool read_table() {
    clsFileReadWrite store;
    store.SetBufferSize(60);
    Array<String> table;
    Boolean stored = false;
    const std::int32_t count =
        store.GetTableEntryUsingTempFile(String(folder_.name("a.ent")), String(), String(u"node"),
                                         u"7", table, String(folder_.name("rows.txt")), stored);
    EXPECT_EQ(count, kRows);
    EXPECT_TRUE(stored);
    return true;
  }

  void check(const Outcome& run) {
    SCOPED_TRACE(run.description);
    EXPECT_EQ(folder_.read("a.ent"), entity_);
    EXPECT_TRUE(run.reported || folder_.read("rows.txt") == rows_);
    EXPECT_FALSE(is_passing(run.fault) && run.reported);
  }

  static constexpr int kRows = 320;
  TemporaryFolder folder_;
  std::string rows_, entity_;
};

TEST_F(TableSpillFaults, LeaveTheEntityFileAndAreReported) {
  const std::size_t faults = inject_everywhere([&] { prepare(); }, [&] { return read_table(); },
                                               [&](const Outcome& run) { check(run); });
  std::cout << faults << " faults injected\n";
  EXPECT_GT(faults, 100u);
}

// Emptying the file for the rows would empty the file from which they come.
TEST_F(TableSpillFaults, RowsNeverGoIntoTheFileThatIsRead) {
  const auto make_one_file_of_both = [&] {
    prepare();
    std::filesystem::remove(folder_ / "rows.txt");
    std::filesystem::create_hard_link(folder_ / "a.ent", folder_ / "rows.txt");
  };
  const std::size_t faults = inject_everywhere(
      make_one_file_of_both, [&] { return read_table(); },
      [&](const Outcome& run) {
        SCOPED_TRACE(run.description);
        EXPECT_TRUE(run.reported);
        EXPECT_EQ(folder_.read("a.ent"), entity_);
      });
  EXPECT_GT(faults, 50u);
}

TEST_F(TableSpillFaults, KilledAnywhereTheEntityFileIsThere) {
  const std::size_t kills = kill_everywhere([&] { prepare(); }, [&] { return read_table(); },
                                            [&](const Outcome& run) {
                                              SCOPED_TRACE(run.description);
                                              EXPECT_EQ(folder_.read("a.ent"), entity_);
                                            });
  std::cout << "killed " << kills << " times\n";
  EXPECT_GT(kills, 5u);
}

}  // namespace
}  // namespace kw::fault
