#include "parse/item.h"

#include <string>

#include "parse/alphabets.h"
#include "reference/parse_list.h"

namespace kw::parse {
namespace {

template <class Char>
class ItemTest : public ScannerTest<Char> {
 protected:
  using typename ScannerTest<Char>::Text;

  static Text with_quotes(const Item<Char>& item) {
    if (item.quote == Char()) return Text(item.text);
    return item.quote + Text(item.text) + item.quote;
  }

  // Takes items until the list is empty.
  static void expect_agreement(View<Char> list, const Text& given) {
    Text expected_list(list);
    while (!expected_list.empty()) {
      Text expected_list_plus = expected_list;
      const Text expected_plus = reference::parse_list(expected_list_plus, given, true);
      const Text expected = reference::parse_list(expected_list, given);
      const Item<Char> item = take_item(list, separator_of(View<Char>(given)));
      ASSERT_EQ(Text(item.text), expected);
      ASSERT_EQ(with_quotes(item), expected_plus);
      ASSERT_EQ(Text(list), expected_list);
    }
    ASSERT_TRUE(list.empty());
  }

  static void expect_words_agree(View<Char> list) {
    View<Char> general = list;
    do {
      const Item<Char> word = take_item(list);
      const Item<Char> item = take_item(general, separator_of(View<Char>()));
      ASSERT_EQ(Text(word.text), Text(item.text));
      ASSERT_EQ(word.quote, item.quote);
      ASSERT_EQ(Text(list), Text(general));
    } while (!list.empty());
  }
};

TYPED_TEST_SUITE(ItemTest, Alphabets);

TYPED_TEST(ItemTest, AgreesWithTheStepsOnAllShortLists) {
  for (const char* separator : {"", ";", "  ;", "; ", "  ", "a;", ";;", "a;a", "'", ";'", "\"';"}) {
    const auto given = this->text(separator);
    this->for_all("' ,\";a", 5, [&](auto list) { this->expect_agreement(list, given); });
  }
}

TYPED_TEST(ItemTest, WordsAgreeWithTheGeneralReader) {
  this->for_all("' ,\"a\t", 6, [&](auto list) { this->expect_words_agree(list); });
}

TYPED_TEST(ItemTest, AgreesWithTheStepsOnRandomLists) {
  const auto letters = this->text("'' ,\";;aab");
  reference::for_random_inputs(1, [&](reference::Random& random) {
    const auto list = reference::pick_text(random, View<TypeParam>(letters), 40);
    const auto separator = reference::pick_text(random, View<TypeParam>(letters), 4);
    this->expect_agreement(list, separator);
    this->expect_words_agree(list);
  });
}

TYPED_TEST(ItemTest, ALongSeparatorMayEndBehindTheText) {
  const std::basic_string<TypeParam> separator(1000, TypeParam('-'));
  const auto list = this->text("a---");
  View<TypeParam> rest = list;
  EXPECT_EQ(take_item(rest, View<TypeParam>(separator)).text, View<TypeParam>(list).substr(0, 1));
  EXPECT_TRUE(rest.empty());
}

}  // namespace
}  // namespace kw::parse
