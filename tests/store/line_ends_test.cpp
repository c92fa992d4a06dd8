#include "store/line_ends.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reference/random_inputs.h"
#include "store/processor.h"

namespace kw::store {
namespace {

struct Finder {
  const char* name;
  LineEndFinder find;
};

std::vector<Finder> finders() {
  std::vector<Finder> all = {{"plain", find_line_ends_plain}, {"best", line_end_finder()}};
#if defined(__x86_64__) || defined(__i386__)
  if (has_sse2()) all.push_back({"sse2", find_line_ends_sse2});
  if (has_avx2()) all.push_back({"avx2", find_line_ends_avx2});
#endif
  return all;
}

struct Found {
  std::vector<std::uint32_t> ends;
  std::vector<std::uint32_t> odd_blanks;
  friend bool operator==(const Found&, const Found&) = default;
};

// Looks at text[begin, begin + length); the rest of the text is what follows the piece.
Found find(LineEndFinder finder, const std::string& text, std::size_t begin, std::size_t length) {
  const std::string padded = text + std::string(1 + kFinderPadding, '\t');
  Found found;
  found.ends.resize(length + kFinderSlack);
  found.odd_blanks.resize(length + kFinderSlack);
  const LineEnds counts =
      finder(padded.data() + begin, length, found.ends.data(), found.odd_blanks.data());
  found.ends.resize(counts.ends);
  found.odd_blanks.resize(counts.odd_blanks);
  return found;
}

TEST(LineEnds, AreFoundAtCrLfAtLoneCrAndAtLoneLf) {
  for (const Finder& finder : finders()) {
    const Found found = find(finder.find, "a\r\nb\rc\nd\n\re\r\r\n", 0, 14);
    EXPECT_EQ(found.ends, (std::vector<std::uint32_t>{2, 4, 6, 8, 9, 11, 13})) << finder.name;
  }
}

TEST(LineEnds, TheByteBehindThePieceDecidesAboutItsLastCr) {
  for (const Finder& finder : finders()) {
    for (std::size_t length : {1u, 31u, 32u, 63u, 64u, 65u, 127u, 128u}) {
      const std::string piece = std::string(length - 1, 'x') + "\r";
      EXPECT_TRUE(find(finder.find, piece + "\n", 0, length).ends.empty()) << finder.name;
      EXPECT_EQ(find(finder.find, piece + "x", 0, length).ends.size(), 1u) << finder.name;
    }
  }
}

TEST(LineEnds, OddBlanksAreTabsAndNoBreakSpacesInsideThePiece) {
  for (const Finder& finder : finders()) {
    for (std::size_t length : {1u, 20u, 64u, 70u, 200u}) {
      const std::string plain(length, ' ');
      EXPECT_TRUE(find(finder.find, plain, 0, length).odd_blanks.empty()) << finder.name;
      for (std::uint32_t at = 0; at < length; ++at) {
        std::string odd = plain;
        odd[at] = at % 2 ? '\t' : '\xA0';
        EXPECT_EQ(find(finder.find, odd, 0, length).odd_blanks, std::vector{at}) << finder.name;
      }
    }
  }
}

TEST(LineEnds, AreTheSameWithEveryKindOfVectors) {
  reference::for_random_inputs(1, [](reference::Random& random) {
    static constexpr std::string_view kAlphabets[] = {"\r\n", "ab\r\n", "abcdefghijkl \t\xA0\r\n"};
    const auto alphabet = kAlphabets[reference::pick(random, 0, 2)];
    const std::string text = reference::pick_text(random, alphabet, 300);
    const std::size_t begin = reference::pick(random, 0, text.size());
    const std::size_t length = reference::pick(random, 0, text.size() - begin);
    const Found expected = find(find_line_ends_plain, text, begin, length);
    for (const Finder& finder : finders())
      ASSERT_EQ(find(finder.find, text, begin, length), expected) << finder.name;
  });
}

}  // namespace
}  // namespace kw::store
