#include "store/record_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory_input.h"
#include "reference/random_inputs.h"
#include "reference/records.h"

namespace kw::store {
namespace {

// The record that a file of this content gives first.
std::string first_record(std::string content) {
  MemoryInput file(std::move(content));
  RecordReader reader(file);
  return std::string(reader.next());
}

std::vector<std::string> records_of(std::string content) {
  MemoryInput file(std::move(content));
  RecordReader reader(file);
  std::vector<std::string> records;
  while (!reader.at_end()) records.emplace_back(reader.next());
  return records;
}

using Records = std::vector<std::string>;

TEST(RecordReader, GivesAnEmptyRecordAtTheEndOfTheFile) { EXPECT_EQ(first_record(""), ""); }

TEST(RecordReader, TrimsBlanksTabsAndNoBreakSpaces) {
  EXPECT_EQ(first_record(" \t\xA0 a b \xA0\t \r\n"), "a b");
}

TEST(RecordReader, ShowsTabsAndNoBreakSpacesAsBlanks) {
  EXPECT_EQ(first_record("a\tb\xA0'c\td'\r\n"), "a b 'c d'");
}

TEST(RecordReader, PassesOverLinesOfBlanksAndTabs) {
  EXPECT_EQ(records_of("\r\n \t \r\na\r\n\xA0\r\nb\r\n"), (Records{"a", "b"}));
}

TEST(RecordReader, PassesOverEachKindOfLineComment) {
  EXPECT_EQ(records_of(";x\n*x\n//x\n*/ x\na\n"), Records{"a"});
}

TEST(RecordReader, TrimsBeforeItLooksForAComment) {
  EXPECT_EQ(records_of("   ; text\n\t* text\na\n"), Records{"a"});
}

TEST(RecordReader, KeepsCommentMarksInsideALine) {
  EXPECT_EQ(first_record("a ; b // c /* d\n"), "a ; b // c /* d");
}

TEST(RecordReader, KeepsALineThatBeginsWithOneSlash) { EXPECT_EQ(first_record("/a\n"), "/a"); }

TEST(RecordReader, PassesOverABlockCommentWithItsLastLine) {
  EXPECT_EQ(records_of("/* one\ntwo\n\nthree */ four\na\n"), Records{"a"});
}

TEST(RecordReader, ABlockCommentMayCloseOnItsOwnLine) {
  EXPECT_EQ(records_of("/* x */ NODE\na\n"), Records{"a"});
}

TEST(RecordReader, SlashAsteriskSlashIsACompleteComment) {
  EXPECT_EQ(records_of("/*/\na\n"), Records{"a"});
}

TEST(RecordReader, NothingIsInterpretedInsideABlockComment) {
  EXPECT_EQ(records_of("/*\n;*/\na\n/*\n/* /*\n*/\nb\n"), (Records{"a", "b"}));
}

TEST(RecordReader, GivesTheLastCommentWhenNothingElseIsLeft) {
  EXPECT_EQ(first_record("; first\r\n\t; la\tst \r\n"), "; la st");
}

TEST(RecordReader, GivesAnEmptyRecordWhenTheFileEndsWithAnEmptyLine) {
  EXPECT_EQ(first_record("; comment\r\n \r\n"), "");
}

TEST(RecordReader, GivesTheLastLineOfABlockCommentThatNeverCloses) {
  EXPECT_EQ(records_of("a\n/* one\n two\n"), (Records{"a", "two"}));
}

TEST(RecordReader, GivesTheOnlyCommentOfAFileWholeAtItsEnd) {
  EXPECT_EQ(first_record(";x\r\n"), ";x");
  EXPECT_EQ(first_record(";x"), ";x");
}

TEST(RecordReader, HandsOutCommentLinesAsTheyStandInTheFile) {
  MemoryInput file(" \t;x\t\n\n/*\n \n\ty */ \na\n");
  RecordReader reader(file);
  Records comments;
  EXPECT_EQ(reader.next([&](std::string_view line) { comments.emplace_back(line); }), "a");
  EXPECT_EQ(comments, (Records{" \t;x\t", "/*", "\ty */ "}));
}

TEST(RecordReader, TellsThePositionBehindTheRecord) {
  MemoryInput file("; c\r\na\r\n\r\nb\r\n");
  RecordReader reader(file);
  EXPECT_EQ(reader.next(), "a");
  EXPECT_EQ(reader.position(), 8);
  reader.seek(5);
  EXPECT_EQ(reader.next(), "a");
}

TEST(RecordReader, ReadsAnyFileAsItsStepsSay) {
  reference::for_random_inputs(3, [](reference::Random& random) {
    const std::string content =
        reference::pick_text<char>(random, "a;*/ \t\xA0\r\n\n/*/", reference::pick(random, 0, 60));
    MemoryInput file(content, reference::pick(random, 1, 70));
    RecordReader reader(file);
    reference::TextFile expected{content};
    std::string comments, expected_comments;
    while (!reader.at_end()) {
      ASSERT_FALSE(expected.at_end());
      const auto keep = [&](std::string_view line) { comments.append(line).append("\r\n"); };
      ASSERT_EQ(reader.next(keep), GetRecordKeepComments(expected, expected_comments))
          << ::testing::PrintToString(content);
      ASSERT_EQ(comments, expected_comments);
      ASSERT_EQ(reader.position(), static_cast<std::int64_t>(expected.position));
    }
    ASSERT_TRUE(expected.at_end());
  });
}

}  // namespace
}  // namespace kw::store
