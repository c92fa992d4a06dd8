#include "line_ends.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "line_words.h"
#include "random.h"

namespace kw::bench {
namespace {

std::vector<std::uint32_t> ends_of(LineEndFinder find, std::string_view text, bool after_cr) {
  std::vector<std::uint32_t> ends(text.size());
  ends.resize(find(text.data(), text.size(), after_cr, ends.data()));
  return ends;
}

std::string random_text(Random& random, std::string_view alphabet, std::size_t length) {
  std::string text(length, ' ');
  for (char& c : text) c = alphabet[random.below(alphabet.size())];
  return text;
}

TEST(LineEnds, CrLfIsOneEndAtItsCr) {
  EXPECT_EQ(ends_of(find_line_ends_plain, "a\r\nb\r\n", false), (std::vector<std::uint32_t>{1, 4}));
}

TEST(LineEnds, LoneCrAndLoneLfEndLines) {
  EXPECT_EQ(ends_of(find_line_ends_plain, "a\rb\n\nc\n\r", false),
            (std::vector<std::uint32_t>{1, 3, 4, 6, 7}));
}

TEST(LineEnds, LfAfterTheCrOfTheTextBeforeEndsNoLine) {
  EXPECT_EQ(ends_of(find_line_ends_plain, "\na\n", true), (std::vector<std::uint32_t>{2}));
}

TEST(LineEnds, VectorCodeFindsTheSameEnds) {
  Random random(1, 0);
  std::vector<LineEndFinder> finders{best_line_end_finder()};
#if defined(__x86_64__)
  finders.push_back(find_line_ends_sse2);
#endif
  for (int round = 0; round < 20'000; ++round) {
    const std::string text = random_text(random, "\r\nab", random.below(300));
    const bool after_cr = random.below(2) == 0;
    for (const LineEndFinder find : finders) {
      ASSERT_EQ(ends_of(find, text, after_cr), ends_of(find_line_ends_plain, text, after_cr));
    }
  }
}

TEST(LineWords, BlanksAroundTheLineAreLeftOut) {
  const std::string_view text = "\t \xA0NODE id 'N1' nm 'Inlet' node \t";
  const Line line = look(text.data(), text.data() + text.size());
  EXPECT_EQ(std::string_view(line.begin, line.end), "NODE id 'N1' nm 'Inlet' node");
  EXPECT_EQ(line.first_length, 4u);
  EXPECT_EQ(line.last_length, 4u);
}

TEST(LineWords, VectorCodeSeesTheSameLine) {
  Random random(2, 0);
  for (int round = 0; round < 50'000; ++round) {
    const std::string_view alphabet = round % 2 == 0 ? "abc \t\xA0" : "abcdefghijkl ";
    const std::string text = random_text(random, alphabet, random.below(60));
    const Line fast = look(text.data(), text.data() + text.size());
    const Line plain = look_plain(text.data(), text.data() + text.size());
    ASSERT_EQ(std::string_view(fast.begin, fast.end), std::string_view(plain.begin, plain.end));
    ASSERT_EQ(fast.first_length, plain.first_length) << '[' << text << ']';
    ASSERT_EQ(fast.last_length, plain.last_length) << '[' << text << ']';
  }
}

}  // namespace
}  // namespace kw::bench
