#include "store/block_source.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory_input.h"
#include "reference/random_inputs.h"
#include "reference/text_file.h"

namespace kw::store {
namespace {

std::vector<std::string> lines_of(BlockSource& source) {
  std::vector<std::string> lines;
  while (!source.at_end()) lines.emplace_back(source.next());
  return lines;
}

std::vector<std::string> lines_of(std::string content) {
  MemoryInput file(std::move(content));
  BlockSource source(file);
  return lines_of(source);
}

using Lines = std::vector<std::string>;

TEST(BlockSource, EndsLinesAtCrLfLoneCrAndLoneLf) {
  EXPECT_EQ(lines_of("a\r\nb\rc\nd"), (Lines{"a", "b", "c", "d"}));
}

TEST(BlockSource, KeepsEmptyLines) {
  EXPECT_EQ(lines_of("\r\n\n\r\ra\r\n"), (Lines{"", "", "", "", "a"}));
}

TEST(BlockSource, GivesNothingForAnEmptyFile) { EXPECT_EQ(lines_of(""), Lines{}); }

TEST(BlockSource, HasNoLineBehindALastLineEnd) {
  for (const char* end : {"\r", "\n", "\r\n"})
    EXPECT_EQ(lines_of("a" + std::string(end)), Lines{"a"});
}

TEST(BlockSource, KeepsNulAndByte26) {
  const std::string odd("a\0b\x1A\nc", 6);
  EXPECT_EQ(lines_of(odd), (Lines{odd.substr(0, 4), "c"}));
}

TEST(BlockSource, TakesACrLfOverTwoReadsForOneEnd) {
  MemoryInput file("a\r\nb\r\n\r\n", 1);
  BlockSource source(file);
  EXPECT_EQ(lines_of(source), (Lines{"a", "b", ""}));
}

TEST(BlockSource, EndsTheFileWhereTheLastCrStandsAlone) {
  MemoryInput file("a\rb\r", 1);
  BlockSource source(file);
  EXPECT_EQ(lines_of(source), (Lines{"a", "b"}));
}

TEST(BlockSource, TellsThePositionBehindEachLine) {
  MemoryInput file("ab\r\nc\r\rd\nlast", 3);
  BlockSource source(file);
  std::vector<std::int64_t> positions = {source.position()};
  while (!source.at_end()) {
    source.next();
    positions.push_back(source.position());
  }
  EXPECT_EQ(positions, (std::vector<std::int64_t>{0, 4, 6, 7, 9, 13}));
}

TEST(BlockSource, ReadsFromWhereItIsSent) {
  MemoryInput file("first\r\nsecond\r\nthird\r\n");
  BlockSource source(file);
  ASSERT_FALSE(source.at_end());
  source.next();
  source.seek(15);
  EXPECT_EQ(source.position(), 15);
  EXPECT_EQ(lines_of(source), Lines{"third"});
  source.seek(9);
  EXPECT_EQ(lines_of(source), (Lines{"cond", "third"}));
}

TEST(BlockSource, IsAtItsEndBeyondTheFile) {
  MemoryInput file("text\r\n");
  BlockSource source(file);
  source.seek(1000);
  EXPECT_TRUE(source.at_end());
  EXPECT_EQ(source.position(), 1000);
}

TEST(BlockSource, StandsWhereItStoodAfterAPositionThatIsNone) {
  MemoryInput file("a\r\nb\r\n");
  BlockSource source(file);
  ASSERT_FALSE(source.at_end());
  source.next();
  EXPECT_THROW(source.seek(-1), Error);
  EXPECT_EQ(lines_of(source), Lines{"b"});
}

TEST(BlockSource, ReadsAFileThatFitsIntoABlockAtOnce) {
  MemoryInput file(std::string(100'000, 'x'));
  BlockSource source(file);
  EXPECT_EQ(lines_of(source).size(), 1u);
  EXPECT_EQ(file.reads, 2);  // the second one sees the end
}

TEST(BlockSource, ReadsMoreThanTheFileClaimedToHold) {
  std::string content;
  for (int i = 0; i < 5000; ++i) content += "line " + std::to_string(i) + "\n";
  MemoryInput file(content, SIZE_MAX, 10);
  BlockSource source(file);
  EXPECT_EQ(lines_of(source).size(), 5000u);
}

TEST(BlockSource, HasNoLongestLine) {
  const std::string line(3'000'000, 'x');
  MemoryInput file("a\r\n" + line + "\r\n" + line + "y\nb\n");
  BlockSource source(file);
  EXPECT_EQ(lines_of(source), (Lines{"a", line, line + "y", "b"}));
}

TEST(BlockSource, KnowsOfAnOddBlankAnywhereInALine) {
  for (std::size_t at : {0u, 10'000u, 20'000u, 299'000u}) {
    std::string line(300'000, 'x');
    line[at] = '\t';
    MemoryInput file("first\n" + line + "\nlast\n" + line);
    BlockSource source(file);
    for (bool odd : {false, true, false, true}) {
      ASSERT_FALSE(source.at_end());
      source.next();
      EXPECT_EQ(source.has_odd_blanks(), odd) << at;
    }
  }
}

TEST(BlockSource, ReadsAnyFileInAnyPiecesAsOneCharacterAtATime) {
  reference::for_random_inputs(2, [](reference::Random& random) {
    const std::string content = reference::pick_text<char>(random, "ab \t\xA0\r\n\r\n", 60);
    MemoryInput file(content, reference::pick(random, 1, 70));
    BlockSource source(file);
    reference::TextFile expected{content};
    while (!source.at_end()) {
      ASSERT_FALSE(expected.at_end());
      const std::string line = expected.read_line();
      ASSERT_EQ(source.next(), line) << ::testing::PrintToString(content);
      ASSERT_EQ(source.has_odd_blanks(), line.find_first_of("\t\xA0") != std::string::npos);
      ASSERT_EQ(source.position(), static_cast<std::int64_t>(expected.position));
    }
    ASSERT_TRUE(expected.at_end());
  });
}

}  // namespace
}  // namespace kw::store
