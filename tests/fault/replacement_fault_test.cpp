// Every system call of a replacement goes wrong, in every way, one run for each. Whatever happens,
// the name leads to the whole old or the whole new content, what failed is reported, and what is
// reported as done is done.
#include <gtest/gtest.h>

#include <iostream>

#include "fault/fault_plan.h"
#include "fault/two_volumes.h"
#include "platform/files.h"
#include "platform/temporary_folder.h"

namespace kw::fault {
namespace {

using kw::testing::TemporaryFolder;
namespace fs = std::filesystem;

const std::string kOld(3000, 'o');
const std::string kNew = std::string(150000, 'n') + "end";  // more than one buffer

class ReplacementFaults : public ::testing::TestWithParam<const char*> {
 protected:
  void prepare() {
    folder_.clear();
    const std::string start = GetParam();
    if (start != "no target") folder_.write("real.ent", kOld);
    if (start == "leftover") folder_.write("a.tmp", "left behind");
    if (start == "link") fs::create_symlink("real.ent", folder_ / "link.ent");
  }

  std::string target() const { return std::string(GetParam()) == "link" ? "link.ent" : "real.ent"; }

  bool replace() {
    const auto file =
        platform::files().create_replacement(folder_.name("a.tmp"), folder_.name(target()));
    file->write(std::string_view(kNew).substr(0, 1000));
    file->write(std::string_view(kNew).substr(1000));
    file->replace();
    return true;
  }

  bool is_old() const {
    if (std::string(GetParam()) == "no target") return !fs::exists(folder_ / target());
    return folder_.read("real.ent") == kOld;
  }
  bool is_new() const { return folder_.read("real.ent") == kNew; }

  void check(const Outcome& run) {
    SCOPED_TRACE(run.description);
    EXPECT_TRUE(is_old() || is_new());
    EXPECT_TRUE(run.reported || is_new());
    EXPECT_EQ(run.reported, !is_passing(run.fault) && !is_recovered(run));
    EXPECT_EQ(fs::is_symlink(folder_ / "link.ent"), target() == "link.ent");
    check_next_writer();
  }

  // What was left may not stand in the next writer's way.
  void check_next_writer() {
    FaultyCalls without_faults;
    const platform::ScopedSystemCalls in_use(without_faults);
    EXPECT_TRUE(replace());
    EXPECT_TRUE(is_new());
  }

  // A file that cannot be opened for writing is opened for reading, which is enough to lock it.
  static bool is_recovered(const Outcome& run) {
    return run.call == "open" && run.fault.error == EACCES && run.fault.repeat == Repeat::once &&
           !run.reported;
  }

  TemporaryFolder folder_;
  TwoVolumes two_volumes_;
  platform::SystemCalls one_volume_;
  platform::ScopedSystemCalls in_use_{std::string(GetParam()) == "other volume" ? two_volumes_
                                                                                : one_volume_};
};

TEST_P(ReplacementFaults, LeaveTheOldOrTheNewFileAndAreReported) {
  const std::size_t faults = inject_everywhere([&] { prepare(); }, [&] { return replace(); },
                                               [&](const Outcome& run) { check(run); });
  std::cout << faults << " faults injected (" << GetParam() << ")\n";
  EXPECT_GT(faults, 100u);
}

TEST_P(ReplacementFaults, KilledAnywhereTheOldOrTheNewFileIsThere) {
  const std::size_t kills = kill_everywhere([&] { prepare(); }, [&] { return replace(); },
                                            [&](const Outcome& run) {
                                              SCOPED_TRACE(run.description);
                                              EXPECT_TRUE(is_old() || is_new());
                                              check_next_writer();
                                            });
  std::cout << "killed " << kills << " times (" << GetParam() << ")\n";
  EXPECT_GT(kills, 10u);
}

INSTANTIATE_TEST_SUITE_P(Starts, ReplacementFaults,
                         ::testing::Values("plain", "no target", "leftover", "link",
                                           "other volume"),
                         [](const auto& start) {
                           std::string name = start.param;
                           for (char& c : name) c = c == ' ' ? '_' : c;
                           return name;
                         });

}  // namespace
}  // namespace kw::fault
