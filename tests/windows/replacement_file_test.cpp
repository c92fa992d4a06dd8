// Replacements through the handle: who may look meanwhile, who is turned away, what is kept.
#include <atomic>
#include <thread>

#include "platform/replacements.h"
#include "platform/windows/system.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::error_of;
using kw::testing::number_of;
using WindowsReplacement = kw::testing::Replacements;

TEST_F(WindowsReplacement, LetsNobodyElseOpenTheTemporaryFile) {
  const auto first = start();
  EXPECT_EQ(error_of([&] { start(); }).system_code, ERROR_SHARING_VIOLATION);
  EXPECT_EQ(number_of([&] { files().open_input(folder_.name("a.tmp")); }), 70);
}

// Newer systems replace a file that a reader has open; older ones, and Wine, refuse it.
TEST_F(WindowsReplacement, LeavesAReaderTheOldContent) {
  folder_.write("a.ent", "old");
  const auto reader = files().open_input(folder_.name("a.ent"));
  std::string expected = "new";
  try {
    replace_with("new");
  } catch (const Error& error) {
    EXPECT_EQ(error.number, ErrorNumber::permission_denied);
    expected = "old";
  }
  char text[8];
  EXPECT_EQ(std::string(text, reader->read(text, sizeof text)), "old");
  EXPECT_EQ(folder_.read("a.ent"), expected);
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(WindowsReplacement, WaitsAWhileForAProgramThatHoldsTheFile) {
  folder_.write("a.ent", "old");
  const auto file = start();
  file->write("new");
  Handle holder(CreateFileW(wide(folder_.name("a.ent")), GENERIC_READ, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(holder);
  std::thread releasing([&] {
    Sleep(200);
    holder.close();
  });
  file->replace();
  releasing.join();
  EXPECT_EQ(folder_.read("a.ent"), "new");
}

TEST_F(WindowsReplacement, ReportsAProgramThatKeepsTheFile) {
  folder_.write("a.ent", "old");
  const Handle holder(CreateFileW(wide(folder_.name("a.ent")), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(holder);
  EXPECT_EQ(number_of([&] { replace_with("new"); }), 70);
  EXPECT_EQ(folder_.read("a.ent"), "old");
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(WindowsReplacement, KnowsTheTargetInAnyCase) {
  folder_.write("a.ent", "old");
  const std::u16string name = folder_.name("a.ent");
  EXPECT_EQ(number_of([&] { files().create_replacement(folder_.name("A.ENT"), name); }), 5);
  EXPECT_EQ(folder_.read("a.ent"), "old");
}

TEST_F(WindowsReplacement, RefusesDevicesAndProtectedFiles) {
  EXPECT_EQ(number_of([&] { files().create_replacement(folder_.name("a.tmp"), u"NUL"); }), 70);
  folder_.write("a.ent", "old");
  SetFileAttributesW(wide(folder_.name("a.ent")), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(number_of([&] { start(); }), 70);
  SetFileAttributesW(wide(folder_.name("a.ent")), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(folder_.list(), Names{"a.ent"});
}

TEST_F(WindowsReplacement, ReportsADriveThatIsNotThere) {
  EXPECT_EQ(number_of([&] { files().create_replacement(u"Q:\\a.tmp", u"Q:\\a.ent"); }), 76);
}

TEST_F(WindowsReplacement, KeepsTheAttributesOfTheFile) {
  folder_.write("a.ent", "old");
  SetFileAttributesW(wide(folder_.name("a.ent")), FILE_ATTRIBUTE_HIDDEN);
  replace_with("new");
  EXPECT_NE(GetFileAttributesW(wide(folder_.name("a.ent"))) & FILE_ATTRIBUTE_HIDDEN, 0u);
}

// At every moment there is the whole old or the whole new content.
TEST_F(WindowsReplacement, ShowsReadersOneWholeContentOrTheOther) {
  const std::string contents[] = {std::string(100000, 'a'), std::string(150000, 'b')};
  folder_.write("a.ent", contents[0]);
  std::atomic<bool> done{false};
  std::atomic<int> torn{0};
  std::thread reading([&] {
    std::string content(200000, '\0');
    while (!done) {
      std::size_t size = 0;
      try {
        const auto file = files().open_input(folder_.name("a.ent"));
        while (const std::size_t got = file->read(content.data() + size, content.size() - size))
          size += got;
      } catch (const Error&) {
        ++torn;
      }
      const std::string_view whole(content.data(), size);
      if (whole != contents[0] && whole != contents[1]) ++torn;
    }
  });
  for (int i = 1; i <= 50; ++i) replace_with(contents[i % 2]);
  done = true;
  reading.join();
  EXPECT_EQ(torn, 0);
}

}  // namespace
}  // namespace kw::platform
