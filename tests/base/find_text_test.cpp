#include "base/find_text.h"

#include <gtest/gtest.h>

#include <string>

#include "reference/all_texts.h"
#include "reference/basic_text.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

template <class Char>
using View = std::basic_string_view<Char>;

template <class Char>
class FindText : public testing::Test {
 protected:
  using Text = std::basic_string<Char>;

  static Text text(const char* ascii) { return reference::text_of<Char>(ascii); }

  static std::size_t expected(View<Char> where, View<Char> sought, std::size_t start) {
    return reference::in_str(start + 1, Text(where), Text(sought)) - 1;
  }
};

using Alphabets = testing::Types<char, char16_t>;
TYPED_TEST_SUITE(FindText, Alphabets);

TYPED_TEST(FindText, AnEmptyTextIsFoundWhereACharacterStands) {
  const auto where = this->text("ab");
  EXPECT_EQ(find_text(View<TypeParam>(where), {}, 0), 0u);
  EXPECT_EQ(find_text(View<TypeParam>(where), {}, 1), 1u);
  EXPECT_EQ(find_text(View<TypeParam>(where), {}, 2), kNotFound);
  EXPECT_EQ(find_text(View<TypeParam>(), {}, 0), kNotFound);
}

TYPED_TEST(FindText, FindsTheFirstPlaceFromTheStart) {
  const auto where = this->text("id 'x' id 'y' and a long text behind it id");
  const auto sought = this->text("id");
  EXPECT_EQ(find_text(View<TypeParam>(where), sought), 0u);
  EXPECT_EQ(find_text(View<TypeParam>(where), sought, 1), 7u);
  EXPECT_EQ(find_text(View<TypeParam>(where), sought, 8), where.size() - 2);
  EXPECT_EQ(find_text(View<TypeParam>(where), sought, where.size()), kNotFound);
  EXPECT_EQ(find_text(View<TypeParam>(where), sought, where.size() + 5), kNotFound);
}

TYPED_TEST(FindText, AgreesWithTheReferenceOnAllShortTexts) {
  const auto letters = this->text("ab");
  reference::for_all_texts(View<TypeParam>(letters), 9, [&](View<TypeParam> where) {
    reference::for_all_texts(View<TypeParam>(letters), 4, [&](View<TypeParam> sought) {
      for (std::size_t start = 0; start <= where.size() + 1; start += 3) {
        ASSERT_EQ(find_text(where, sought, start), this->expected(where, sought, start));
      }
    });
  });
}

TYPED_TEST(FindText, AgreesWithTheReferenceOnRandomTexts) {
  const auto letters = this->text("abc");
  reference::for_random_inputs(11, [&](reference::Random& random) {
    const std::size_t kinds = reference::pick(random, 1, 3);
    const View<TypeParam> alphabet = View<TypeParam>(letters).substr(0, kinds);
    const auto where = reference::pick_text(random, alphabet, 90);
    const auto sought = reference::pick_text(random, alphabet, 9);
    const std::size_t start = reference::pick(random, 0, 20);
    ASSERT_EQ(find_text(View<TypeParam>(where), sought, start),
              this->expected(where, sought, start));
    ASSERT_EQ(find_unit(where, letters[1], start), View<TypeParam>(where).find(letters[1], start));
  });
}

TYPED_TEST(FindText, TheLinearSearchAgreesWithTheReference) {
  const auto letters = this->text("ab");
  reference::for_all_texts(View<TypeParam>(letters), 7, [&](View<TypeParam> sought) {
    if (sought.empty()) return;
    const detail::TwoWay<TypeParam> search(sought);
    reference::for_random_inputs(
        sought.size(),
        [&](reference::Random& random) {
          auto where = reference::pick_text(random, View<TypeParam>(letters), 12);
          where += sought.substr(0, sought.size() - reference::pick(random, 0, 1));
          where += reference::pick_text(random, View<TypeParam>(letters), 12);
          ASSERT_EQ(search.find(where), this->expected(where, sought, 0));
        },
        std::chrono::milliseconds(1));
  });
}

TYPED_TEST(FindText, TheLinearSearchAgreesOnPeriodicTexts) {
  const auto letters = this->text("ab");
  reference::for_random_inputs(12, [&](reference::Random& random) {
    const auto unit = reference::pick_text(random, View<TypeParam>(letters), 4);
    std::basic_string<TypeParam> sought = letters;
    std::basic_string<TypeParam> where = letters;
    for (std::size_t count = reference::pick(random, 0, 4); count > 0; --count) sought += unit;
    for (std::size_t count = reference::pick(random, 0, 12); count > 0; --count) where += unit;
    sought.erase(0, reference::pick(random, 0, 2));
    sought += reference::pick_text(random, View<TypeParam>(letters), 2);
    where += reference::pick_text(random, View<TypeParam>(letters), 3);
    if (sought.empty()) return;
    ASSERT_EQ(detail::TwoWay<TypeParam>(sought).find(where), this->expected(where, sought, 0));
  });
}

// A plain search would compare 2,000,000 characters at each of 2,000,000 places.
TYPED_TEST(FindText, RepetitiveTextsTakeLinearTime) {
  const std::size_t half = 1'000'000;
  std::basic_string<TypeParam> where(4 * half, TypeParam('a'));
  std::basic_string<TypeParam> sought(2 * half, TypeParam('a'));
  sought[half] = TypeParam('b');
  EXPECT_EQ(find_text(View<TypeParam>(where), sought), kNotFound);
  where[3 * half - 7] = TypeParam('b');
  EXPECT_EQ(find_text(View<TypeParam>(where), sought), 2 * half - 7);
}

}  // namespace
}  // namespace kw
