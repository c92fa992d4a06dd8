// A unified diff is right when it can be applied: besides a few that are written out, diffs of
// random texts are applied by an independent reader of the format and must give the new text.
#include "tool/diff.h"

#include <gtest/gtest.h>

#include <random>

#include "tool/line_match.h"

namespace kw::tool {
namespace {

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
    lines.push_back(text.substr(at, end - at));
    at = end;
  }
  return lines;
}

// What the diff makes of the old text; checks what it says about the old text on the way.
std::string applied(const std::string& old_text, const std::string& diff) {
  const std::vector<std::string> old_lines = lines_of(old_text);
  std::string result;
  std::size_t at = 0;
  for (std::string line : lines_of(diff)) {
    if (line.rfind("--- ", 0) == 0 || line.rfind("+++ ", 0) == 0) continue;
    if (line[0] == '\\') {
      continue;
    }
    if (line[0] == '@') {
      const unsigned long start = std::stoul(line.substr(4));
      const bool nothing = line.substr(4, line.find(' ', 4) - 4).find(",0") != std::string::npos;
      for (; at < start - (nothing ? 0 : 1); ++at) result += old_lines.at(at);
      continue;
    }
    const std::string text = line.substr(1);
    if (line[0] == '+') {
      result += text;
      continue;
    }
    EXPECT_EQ(old_lines.at(at).substr(0, text.size() - 1), text.substr(0, text.size() - 1));
    if (line[0] == ' ') result += old_lines.at(at);
    ++at;
  }
  for (; at < old_lines.size(); ++at) result += old_lines[at];
  return result;
}

TEST(UnifiedDiff, IsEmptyForEqualTexts) { EXPECT_EQ(unified_diff("a\n", "a\n", "f", "g"), ""); }

TEST(UnifiedDiff, ShowsThreeLinesAroundAChange) {
  EXPECT_EQ(unified_diff("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nfive\n6\n7\n8\n9\n", "f", "g"),
            "--- f\n+++ g\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, SeparatesDistantChanges) {
  std::string old_text;
  for (int i = 0; i < 20; ++i) old_text += std::to_string(i) + "\n";
  const std::string new_text = "first\n" + old_text + "last\n";
  EXPECT_EQ(unified_diff(old_text, new_text, "f", "g"),
            "--- f\n+++ g\n@@ -1,3 +1,4 @@\n+first\n 0\n 1\n 2\n"
            "@@ -18,3 +19,4 @@\n 17\n 18\n 19\n+last\n");
}

TEST(UnifiedDiff, ShowsANewFile) {
  EXPECT_EQ(unified_diff("", "a\nb\n", "f", "g"), "--- f\n+++ g\n@@ -0,0 +1,2 @@\n+a\n+b\n");
}

TEST(UnifiedDiff, MarksAMissingLineEnd) {
  EXPECT_EQ(unified_diff("a", "a\n", "f", "g"),
            "--- f\n+++ g\n@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n");
}

TEST(UnifiedDiff, KeepsCarriageReturns) {
  EXPECT_EQ(unified_diff("a\r\n", "b\r\n", "f", "g"), "--- f\n+++ g\n@@ -1 +1 @@\n-a\r\n+b\r\n");
}

TEST(UnifiedDiff, GivesTheNewTextWhenApplied) {
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    std::string old_text;
    std::string new_text;
    for (auto i = random() % 30; i > 0; --i) {
      const std::string line = std::to_string(random() % 12) + "\n";
      if (random() % 4 != 0) old_text += line;
      if (random() % 4 != 0) new_text += line;
    }
    const std::string diff = unified_diff(old_text, new_text, "f", "g");
    ASSERT_EQ(applied(old_text, diff), new_text) << diff;
  }
}

TEST(LineMatch, KeepsALongestCommonChoice) {
  const LineMatch match = match_lines({1, 2, 1, 3, 1}, {1, 1, 3, 2, 1});
  EXPECT_EQ(match.removed, (std::vector<bool>{false, true, false, false, false}));
  EXPECT_EQ(match.added, (std::vector<bool>{false, false, false, true, false}));
}

}  // namespace
}  // namespace kw::tool
