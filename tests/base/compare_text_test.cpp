#include "base/compare_text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>
#include <unordered_set>

#include "base/case_map.h"
#include "reference/all_texts.h"
#include "reference/compare_text.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

// Letters that share capitals, a letter past "Z" and below "a", and a surrogate.
constexpr std::u16string_view kAlphabet = u"aAbZz_éÉß\u017F\xD800";

TEST(CompareText, CaseDoesNotCount) {
  EXPECT_EQ(compare_text(u"Node", u"nODE"), 0);
  EXPECT_EQ(compare_text(u"ÉTÉ", u"été"), 0);
  EXPECT_TRUE(equal_text(u"ÉTÉ à la", u"été À LA"));
}

TEST(CompareText, OrdersByUpperCaseCodeUnits) {
  EXPECT_EQ(compare_text(u"a", u"B"), -1);
  EXPECT_EQ(compare_text(u"b", u"A"), 1);
  EXPECT_EQ(compare_text(u"_", u"a"), 1);
}

TEST(CompareText, TheShorterTextComesFirst) {
  EXPECT_EQ(compare_text(u"NODE", u"node1"), -1);
  EXPECT_EQ(compare_text(u"node1", u"NODE"), 1);
  EXPECT_EQ(compare_text(u"", u"a"), -1);
  EXPECT_EQ(compare_text(u"", {}), 0);
}

TEST(CompareText, EveryPairOfCodeUnitsWithOneCapitalIsEqual) {
  for (unsigned number = 0; number < 0x10000; ++number) {
    const auto unit = static_cast<char16_t>(number);
    const std::u16string capital(5, to_upper(unit));
    const std::u16string text(5, unit);
    ASSERT_EQ(compare_text(text, capital), 0) << number;
    ASSERT_EQ(hash_text(text), hash_text(capital)) << number;
  }
}

void expect_agreement(std::u16string_view left, std::u16string_view right) {
  const int expected = reference::compare_text(left, right);
  ASSERT_EQ(compare_text(left, right), expected);
  ASSERT_EQ(equal_text(left, right), expected == 0);
  if (expected == 0) {
    ASSERT_EQ(hash_text(left), hash_text(right));
  }
}

TEST(CompareText, AgreesWithTheReferenceOnAllShortTexts) {
  reference::for_all_texts(kAlphabet, 3, [](std::u16string_view left) {
    reference::for_all_texts(kAlphabet, 2,
                             [left](std::u16string_view right) { expect_agreement(left, right); });
  });
}

TEST(CompareText, AgreesWithTheReferenceOnRandomTexts) {
  reference::for_random_inputs(1, [](reference::Random& random) {
    const std::u16string left = reference::pick_text(random, kAlphabet, 20);
    std::u16string right = left;
    for (char16_t& unit : right) {
      if (reference::pick(random, 0, 1) == 0) unit = to_upper(unit);
    }
    if (reference::pick(random, 0, 1) == 0) right += reference::pick_text(random, kAlphabet, 2);
    if (!right.empty() && reference::pick(random, 0, 1) == 0) {
      right[reference::pick(random, 0, right.size() - 1)] =
          kAlphabet[reference::pick(random, 0, 9)];
    }
    expect_agreement(left, right);
  });
}

TEST(HashText, DiffersForAllShortTextsThatDiffer) {
  std::unordered_set<std::size_t> hashes;
  std::set<std::u16string> texts;
  reference::for_all_texts(std::u16string_view(u"AB0_\0"), 7, [&](std::u16string_view text) {
    texts.emplace(text);
    hashes.insert(hash_text(text));
  });
  if constexpr (sizeof(std::size_t) == 8) {
    EXPECT_EQ(hashes.size(), texts.size());
  } else {
    EXPECT_GT(hashes.size(), texts.size() - texts.size() / 1000);
  }
}

// Tables take the low bits, so numbered identifiers must fill these evenly.
TEST(HashText, FillsTheSlotsOfATableEvenly) {
  constexpr std::size_t kSlots = 1024;
  constexpr std::size_t kTexts = 100 * kSlots;
  std::size_t counts[kSlots] = {};
  for (std::size_t number = 0; number < kTexts; ++number) {
    std::u16string text = u"id";
    for (const char digit : std::to_string(number)) text.push_back(static_cast<char16_t>(digit));
    ++counts[hash_text(text) % kSlots];
  }
  for (const std::size_t count : counts) {
    EXPECT_GT(count, 50u);
    EXPECT_LT(count, 150u);
  }
}

TEST(CompareBinary, OrdersByCodeUnit) {
  EXPECT_EQ(compare_binary(u"B", u"a"), -1);
  EXPECT_EQ(compare_binary(u"a", u"B"), 1);
  EXPECT_EQ(compare_binary(u"\xE000", u"\xD83D\xDE00"), 1);
  EXPECT_EQ(compare_binary(u"node", u"node"), 0);
  EXPECT_EQ(compare_binary(u"node", u"node1"), -1);
  EXPECT_EQ(compare_binary(u"\u0100", u"\u00FF"), 1);
}

TEST(CompareBinary, AgreesWithTheStandardLibraryOnRandomTexts) {
  reference::for_random_inputs(
      2,
      [](reference::Random& random) {
        const std::u16string left = reference::pick_text(random, kAlphabet.substr(0, 3), 9);
        const std::u16string right = reference::pick_text(random, kAlphabet.substr(0, 3), 9);
        const int expected = left.compare(right);
        ASSERT_EQ(compare_binary(left, right), (expected > 0) - (expected < 0));
      },
      std::chrono::milliseconds(300));
}

}  // namespace
}  // namespace kw
