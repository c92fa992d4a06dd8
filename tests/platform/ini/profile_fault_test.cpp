// Every system call of a change to an INI file goes wrong, in every way, one run for each. Whatever
// happens, the file is the whole old or the whole new one, and the result tells which.
#include <gtest/gtest.h>

#include "fault/fault_plan.h"
#include "platform/profile.h"
#include "platform/temporary_folder.h"

namespace kw::fault {
namespace {

constexpr std::string_view kOld = "; comment\r\n\r\n[s]\r\nk=old\r\n[t]\r\n";
constexpr std::string_view kNew = "; comment\r\n\r\n[s]\r\nk=new\r\n[t]\r\n";
constexpr std::string_view kRemoved = "; comment\r\n\r\n[s]\r\n[t]\r\n";

class ProfileFaults : public ::testing::Test {
 protected:
  void prepare() {
    folder_.clear();
    folder_.write("a.ini", kOld);
  }
  bool write(std::optional<std::string_view> value) {
    return platform::profile::write_string("s", "k", value, (folder_ / "a.ini").string());
  }
  std::string read() const {
    return platform::profile::get_string("s", "k", "default", 1024, (folder_ / "a.ini").string());
  }

  testing::TemporaryFolder folder_;
};

TEST_F(ProfileFaults, LeaveTheOldOrTheNewFileAndAreReported) {
  const std::size_t faults = inject_everywhere([&] { prepare(); }, [&] { return write("new"); },
                                               [&](const Outcome& run) {
                                                 SCOPED_TRACE(run.description);
                                                 const std::string now = folder_.read("a.ini");
                                                 EXPECT_TRUE(now == kOld || now == kNew) << now;
                                                 EXPECT_TRUE(run.reported || now == kNew);
                                                 EXPECT_EQ(run.error, 0);  // the result alone tells
                                               });
  EXPECT_GT(faults, 50u);
}

TEST_F(ProfileFaults, LeaveTheOldFileOrTheOneWithoutTheKey) {
  inject_everywhere([&] { prepare(); }, [&] { return write(std::nullopt); },
                    [&](const Outcome& run) {
                      const std::string now = folder_.read("a.ini");
                      EXPECT_TRUE(now == kOld || now == kRemoved) << run.description << now;
                    });
}

TEST_F(ProfileFaults, ReadersFallBackOrGiveTheWholeValue) {
  inject_everywhere([&] { prepare(); },
                    [&] {
                      const std::string value = read();
                      EXPECT_TRUE(value == "old" || value == "default") << value;
                      return value == "old";
                    },
                    [](const Outcome&) {});
}

TEST_F(ProfileFaults, AKilledWriterLeavesTheOldOrTheNewFile) {
  const std::size_t killed = kill_everywhere([&] { prepare(); }, [&] { return write("new"); },
                                             [&](const Outcome& run) {
                                               const std::string now = folder_.read("a.ini");
                                               EXPECT_TRUE(now == kOld || now == kNew)
                                                   << run.description << now;
                                               EXPECT_TRUE(write("next")) << run.description;
                                               EXPECT_EQ(read(), "next") << run.description;
                                             });
  EXPECT_GT(killed, 5u);
}

}  // namespace
}  // namespace kw::fault
