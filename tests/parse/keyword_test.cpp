#include "parse/keyword.h"

#include <string>

#include "parse/alphabets.h"
#include "parse/line.h"
#include "reference/parse_keyword.h"

namespace kw::parse {
namespace {

template <class Char>
class KeywordTest : public ScannerTest<Char> {
 protected:
  using typename ScannerTest<Char>::Text;

  static void expect_agreement(View<Char> text, const Text& token) {
    const auto expected = reference::value_text(Text(text), token);
    const auto value = keyword_value(take_line(text), View<Char>(token));
    ASSERT_EQ(value.has_value(), expected.has_value());
    if (value) {
      ASSERT_EQ(Text(*value), *expected);
    }
  }

  // The long line is `part` over and over.
  static Text repeated(const char* part, std::size_t size) {
    const Text piece = ScannerTest<Char>::text(part);
    Text line;
    while (line.size() < size) line += piece;
    return line;
  }
};

TYPED_TEST_SUITE(KeywordTest, Alphabets);

TYPED_TEST(KeywordTest, AgreesWithTheStepsOnAllShortTexts) {
  for (const char* token : {"i", "id", "", "'", "\"", ",", ",,", " ", "i i", " i", "'i", ",i"}) {
    const auto sought = this->text(token);
    this->for_all("' ,\"id", 5, [&](auto text) { this->expect_agreement(text, sought); });
    this->for_all("' i\r\n", 5, [&](auto text) { this->expect_agreement(text, sought); });
  }
}

TYPED_TEST(KeywordTest, WordsAreFoundAsTheStepsFindThem) {
  for (const char* token : {"i", "id", "", "'", ",,", "i d"}) {
    const auto sought = this->text(token);
    this->for_all("' ,id", 5, [&](auto text) {
      for (std::size_t position = 0; position <= text.size(); ++position) {
        ASSERT_EQ(IsTokenAt(text, sought, position),
                  reference::is_token_at({text.begin(), text.end()}, sought, position + 1));
      }
    });
  }
}

TYPED_TEST(KeywordTest, AgreesWithTheStepsOnRandomTexts) {
  const auto letters = this->text("''   ,\"iidd\r\n");
  reference::for_random_inputs(4, [&](reference::Random& random) {
    const auto text = reference::pick_text(random, View<TypeParam>(letters), 60);
    const auto token = reference::pick_text(random, View<TypeParam>(letters), 3);
    this->expect_agreement(text, token);
  });
}

// Each of these would take hours if a word or the quotes before it were read again and again.
TYPED_TEST(KeywordTest, LongLinesTakeLinearTime) {
  const std::size_t size = 3'000'000;
  const auto id = this->text("id");
  const auto quoted = this->repeated("' id' ", size);
  EXPECT_FALSE(keyword_value(View<TypeParam>(quoted), View<TypeParam>(id)));
  const auto inside = this->repeated("ididid", size);
  EXPECT_FALSE(keyword_value(View<TypeParam>(inside), View<TypeParam>(id)));
  const auto token = this->repeated("a", size / 2);
  const auto words = this->repeated("a", size) + this->repeated(" a", size);
  EXPECT_FALSE(keyword_value(View<TypeParam>(words), View<TypeParam>(token)));
  const auto phrase = this->repeated("a ", size / 2);
  EXPECT_FALSE(keyword_value(View<TypeParam>(words), View<TypeParam>(phrase)));
}

}  // namespace
}  // namespace kw::parse
