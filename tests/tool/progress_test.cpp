#include "tool/progress.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/memory_files.h"

namespace kw::tool {
namespace {

using std::chrono::milliseconds;

class Progress : public testing::Test {
 protected:
  std::string shown() {
    std::string text(4096, '\0');
    std::rewind(terminal_.get());
    text.resize(std::fread(text.data(), 1, text.size(), terminal_.get()));
    return text;
  }

  std::unique_ptr<std::FILE, int (*)(std::FILE*)> terminal_{std::tmpfile(), &std::fclose};
  ProgressBar::Clock::time_point start_ = ProgressBar::Clock::now();
  ProgressBar bar_{terminal_.get(), start_};
};

TEST_F(Progress, ShowsNothingOfShortWork) {
  bar_.show("plant.ent", 1, 2, start_ + milliseconds(499));
  bar_.clear();
  EXPECT_EQ(shown(), "");
}

TEST_F(Progress, ShowsPartAndPercent) {
  bar_.show("plant.ent", 50, 100, start_ + milliseconds(500));
  EXPECT_EQ(shown(), "\rplant.ent  [############............]  50%");
}

TEST_F(Progress, IsDrawnTenTimesASecond) {
  bar_.show("a", 1, 100, start_ + milliseconds(500));
  bar_.show("a", 2, 100, start_ + milliseconds(599));
  bar_.show("a", 3, 100, start_ + milliseconds(600));
  EXPECT_EQ(shown(), "\ra  [........................]   1%\ra  [........................]   3%");
}

TEST_F(Progress, GoesWhenTheWorkIsDone) {
  bar_.show("a", 1, 1, start_ + milliseconds(500));
  const std::string before = shown();
  bar_.clear();
  EXPECT_EQ(shown(), before + "\r" + std::string(before.size() - 1, ' ') + "\r");
  bar_.clear();
  EXPECT_EQ(shown().size(), 2 * before.size() + 1);
}

TEST_F(Progress, CountsBytesWhereTheEndIsUnknown) {
  bar_.show("pipe", 2'500'000, 0, start_ + milliseconds(500));
  EXPECT_EQ(shown(), "\rpipe  2.5 MB");
}

TEST_F(Progress, NeverShowsMoreThanAll) {
  bar_.show("a", 5, 4, start_ + milliseconds(500));
  EXPECT_EQ(shown(), "\ra  [########################] 100%");
}

TEST_F(Progress, ShortensNamesAndHidesControlCharacters) {
  bar_.show(std::string(50, 'x') + "\n.ent", 0, 0, start_ + milliseconds(500));
  EXPECT_EQ(shown(), "\r…" + std::string(34, 'x') + "?.ent  0.0 MB");
}

TEST_F(Progress, IsSilentWhereNobodyWatches) {
  ProgressBar bar(nullptr, start_);
  bar.show("a", 1, 1, start_ + milliseconds(900));
  bar.clear();
  EXPECT_EQ(shown(), "");
}

TEST_F(Progress, FollowsTheReadingOfAFile) {
  platform::MemoryFiles memory;
  memory.put(u"a.ent", "0123456789");
  ProgressBar bar(terminal_.get(), start_ - milliseconds(500));
  WatchedFiles files(memory, bar);
  {
    const auto file = files.open_input(u"a.ent");
    char part[5];
    EXPECT_EQ(file->read(part, sizeof part), 5u);
    EXPECT_EQ(shown(), "\ra.ent  [############............]  50%");
  }
  EXPECT_TRUE(shown().ends_with(" \r"));
}

}  // namespace
}  // namespace kw::tool
