#include "sort/texts.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "reference/all_texts.h"
#include "reference/compare_text.h"
#include "reference/quicksort_scheme.h"
#include "reference/random_inputs.h"
#include "sort/agreement.h"
#include "sort/array_shapes.h"
#include "sort/failing_memory.h"

namespace kw::sort {
namespace {

using Text = const std::u16string*;

struct Reader {
  static std::u16string_view text(Text element) { return *element; }
};

using Order = TextOrder<Reader>;

int compare(Text a, Text b, CompareMethod method) {
  return method == CompareMethod::binary ? a->compare(*b) : reference::compare_text(*a, *b);
}

auto scheme_order(Order how) {
  return [how](Text a, Text b) {
    const int order = compare(a, b, how.method);
    return how.direction == Direction::ascending ? order < 0 : order > 0;
  };
}

// The texts of elements rather than the elements: texts that are the same cannot be told apart.
std::vector<std::u16string_view> texts_of(const BasedArray<Text>& array) {
  std::vector<std::u16string_view> texts;
  for (Text text : array.values) texts.emplace_back(*text);
  return texts;
}

void expect_texts_agree(const BasedArray<Text>& values, Order how) {
  BasedArray<Text> expected = values, sorted = values;
  reference::quicksort(expected, nullptr, scheme_order(how));
  sort_texts(bounded(sorted), how);
  ASSERT_EQ(texts_of(sorted), texts_of(expected));

  sorted = values;
  expected = values;
  auto expected_order = identity(values.lower, values.values.size());
  auto sorted_order = expected_order;
  reference::quicksort(expected, &expected_order, scheme_order(how));
  sort_texts(bounded(sorted), bounded(sorted_order), how);
  ASSERT_EQ(texts_of(sorted), texts_of(expected));
  ASSERT_EQ(sorted_order.values, expected_order.values);
}

void expect_texts_agree(const std::vector<std::u16string>& texts, std::int32_t lower) {
  BasedArray<Text> values{lower, {}};
  for (const std::u16string& text : texts) values.values.push_back(&text);
  for (Direction direction : {Direction::ascending, Direction::descending})
    for (CompareMethod method : {CompareMethod::binary, CompareMethod::text})
      ASSERT_NO_FATAL_FAILURE(expect_texts_agree(values, Order{direction, method}));
}

// Letters that share capitals, the lowest and highest code units, both sides of Latin-1's end, and
// a letter whose capital lies beyond it.
constexpr char16_t kLetters[] = {'a',    'A',    'b',    'B',    'z',    0,      1,      ' ',   '_',
                                 0x00FE, 0x00FF, 0x0100, 0x0178, 0x00E9, 0x0430, 0xFFFF, 0xD800};
constexpr std::u16string_view kAlphabet(kLetters, std::size(kLetters));

std::vector<std::u16string> pick_texts(Random& random, std::size_t count) {
  const auto prefix = reference::pick_text(random, kAlphabet, pick(random, 0, 1) * 20);
  const auto alphabet = kAlphabet.substr(0, pick(random, 1, kAlphabet.size()));
  const std::size_t longest = pick(random, 0, 3) * 6;
  std::vector<std::u16string> texts(count);
  for (std::u16string& text : texts) {
    if (pick(random, 0, 9) > 0) text = prefix;
    text += reference::pick_text(random, alphabet, longest);
  }
  shape(random, texts, std::less<>());
  return texts;
}

TEST(SortTexts, AgreesWithTheSchemeOnRandomTexts) {
  reference::for_random_inputs(
      1,
      [](Random& random) {
        ASSERT_NO_FATAL_FAILURE(
            expect_texts_agree(pick_texts(random, pick(random, 1, 300)),
                               static_cast<std::int32_t>(pick(random, 0, 10)) - 5));
      },
      std::chrono::seconds(2));
}

TEST(SortTexts, AgreesWithTheSchemeOnLongArrays) {
  Random random(2);
  for (int k = 0; k < 5; ++k)
    ASSERT_NO_FATAL_FAILURE(expect_texts_agree(pick_texts(random, 2000), 1));
}

TEST(SortTexts, AgreesWithTheSchemeWithoutWorkingMemory) {
  Random random(3);
  const NoWorkMemory none;
  for (int k = 0; k < 20; ++k)
    ASSERT_NO_FATAL_FAILURE(expect_texts_agree(pick_texts(random, pick(random, 1, 300)), 0));
}

TEST(SortTexts, SortsEveryShortText) {
  constexpr char16_t kFew[] = {0, u'a', u'A', 0x0100};
  std::vector<std::u16string> texts;
  reference::for_all_texts(std::u16string_view(kFew, std::size(kFew)), 5,
                           [&](std::u16string_view text) { texts.emplace_back(text); });
  Random random(4);
  std::shuffle(texts.begin(), texts.end(), random);
  expect_texts_agree(texts, 0);
}

// Each text begins the next one: every look deeper settles a single text.
TEST(SortTexts, SortsTextsThatBeginEachOther) {
  std::vector<std::u16string> texts;
  for (std::size_t length = 0; length < 1000; ++length) texts.emplace_back(length, u'x');
  Random random(5);
  std::shuffle(texts.begin(), texts.end(), random);
  expect_texts_agree(texts, 0);
}

TEST(SortTexts, CaseAtTheEndOfLongTextsIsFound) {
  std::vector<std::u16string> texts(100, std::u16string(1000, u'y'));
  for (std::size_t k = 0; k < texts.size(); k += 3) texts[k].back() = u'Y';
  expect_texts_agree(texts, -3);
}

TEST(SortTexts, NoTextsAreASubscriptError) {
  const Order how{Direction::ascending, CompareMethod::text};
  EXPECT_EQ(number_of([&] { sort_texts(Bounded<Text>{}, how); }), 9);
}

TEST(SortTexts, AShortOrderArrayIsASubscriptErrorAfterTheFirstSwap) {
  const std::u16string a = u"a", b = u"b";
  BasedArray<Text> values{0, {&b, &a}};
  BasedArray<std::int32_t> order{0, {0}};
  const Order how{Direction::ascending, CompareMethod::text};
  EXPECT_EQ(number_of([&] { sort_texts(bounded(values), bounded(order), how); }), 9);
  EXPECT_EQ(*values.values.front(), u"a");
}

}  // namespace
}  // namespace kw::sort
