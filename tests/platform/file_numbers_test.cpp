#include "platform/file_numbers.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/memory_files.h"
#include "support/expect_error.h"

namespace kw::platform {
namespace {

using kw::testing::number_of;

class FileNumbersTest : public ::testing::Test {
 protected:
  FileNumbersTest() : in_use_(memory_) { memory_.put(u"a.ent", "content"); }

  MemoryFiles memory_;
  ScopedFileService in_use_;
  FileNumbers numbers_;
};

TEST_F(FileNumbersTest, FindsTheFileUnderItsNumber) {
  numbers_.open(3, u"a.ent", FileMode::input);
  char text[16];
  EXPECT_EQ(numbers_.find(3)->input().read(text, sizeof text), 7u);
}

TEST_F(FileNumbersTest, ANumberThatIsNotOpenIsABadNumber) {
  EXPECT_EQ(number_of([&] { numbers_.find(1); }), 52);
  EXPECT_EQ(number_of([&] { numbers_.close(1); }), 52);
}

TEST_F(FileNumbersTest, ANumberIsTakenUntilItIsClosed) {
  numbers_.open(1, u"a.ent", FileMode::input);
  EXPECT_EQ(number_of([&] { numbers_.open(1, u"a.ent", FileMode::input); }), 52);
  numbers_.close(1);
  numbers_.open(1, u"a.ent", FileMode::input);
  EXPECT_EQ(numbers_.find(1)->mode(), FileMode::input);
}

TEST_F(FileNumbersTest, NumbersBeginAtOne) {
  EXPECT_EQ(number_of([&] { numbers_.open(0, u"a.ent", FileMode::input); }), 52);
  EXPECT_EQ(number_of([&] { numbers_.open(-1, u"a.ent", FileMode::input); }), 52);
}

TEST_F(FileNumbersTest, AFileThatCannotBeOpenedTakesNoNumber) {
  EXPECT_EQ(number_of([&] { numbers_.open(1, u"gone", FileMode::input); }), 53);
  EXPECT_EQ(number_of([&] { numbers_.find(1); }), 52);
}

TEST_F(FileNumbersTest, AFileServesOneModeOnly) {
  numbers_.open(1, u"a.ent", FileMode::input);
  numbers_.open(2, u"out", FileMode::output);
  EXPECT_EQ(number_of([&] { numbers_.find(1)->output(); }), 54);
  EXPECT_EQ(number_of([&] { numbers_.find(2)->input(); }), 54);
}

TEST_F(FileNumbersTest, ClosingCompletesTheOutput) {
  numbers_.open(2, u"out", FileMode::output);
  numbers_.find(2)->output().write("written");
  numbers_.close(2);
  EXPECT_EQ(memory_.content(u"out"), "written");
}

TEST_F(FileNumbersTest, ReadingStateLivesAsLongAsTheFileIsOpen) {
  numbers_.open(1, u"a.ent", FileMode::input);
  EXPECT_EQ(numbers_.find(1)->reading_state, nullptr);
  const auto state = std::make_shared<std::string>("read ahead");
  numbers_.find(1)->reading_state = state;
  EXPECT_EQ(numbers_.find(1)->reading_state, state);
  numbers_.close(1);
  EXPECT_EQ(state.use_count(), 1);
}

TEST_F(FileNumbersTest, AFileInUseOutlivesItsNumber) {
  numbers_.open(1, u"a.ent", FileMode::input);
  const auto file = numbers_.find(1);
  numbers_.close(1);
  char text[16];
  EXPECT_EQ(file->input().read(text, sizeof text), 7u);
}

TEST_F(FileNumbersTest, TheNextFreeNumberIsTheLowest) {
  EXPECT_EQ(numbers_.next_free(), 1);
  numbers_.open(1, u"a.ent", FileMode::input);
  numbers_.open(3, u"a.ent", FileMode::input);
  EXPECT_EQ(numbers_.next_free(), 2);
  numbers_.open(2, u"a.ent", FileMode::input);
  EXPECT_EQ(numbers_.next_free(), 4);
}

}  // namespace
}  // namespace kw::platform
