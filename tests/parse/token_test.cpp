#include "parse/token.h"

#include <limits>
#include <string>

#include "parse/alphabets.h"
#include "reference/parse_token.h"

namespace kw::parse {
namespace {

template <class Char>
class TokenTest : public ScannerTest<Char> {
 protected:
  using typename ScannerTest<Char>::Text;

  static void expect_agreement(View<Char> text) {
    reference::TokenStep<Char> step{Text(text), 0, {}};
    TokenReader<Char> reader(text);
    for (int count = 0; count < 5; ++count) {
      const bool more = step.read();
      const auto token = reader.next();
      ASSERT_EQ(token.has_value(), more);
      if (!more) break;
      ASSERT_EQ(Text(*token), step.token);
      ASSERT_EQ(reader.at_end(), step.rest.empty());
    }
    for (int number = -1; number <= 4; ++number) {
      ASSERT_EQ(Text(token_at(text, number)), reference::parse_token(Text(text), number));
    }
  }
};

TYPED_TEST_SUITE(TokenTest, Alphabets);

TYPED_TEST(TokenTest, AgreesWithTheStepsOnAllShortTexts) {
  this->for_all("' ,\"a\t", 6, [&](auto text) { this->expect_agreement(text); });
}

TYPED_TEST(TokenTest, AgreesWithTheStepsOnRandomTexts) {
  const auto letters = this->text("'  ,\"abc");
  reference::for_random_inputs(2, [&](reference::Random& random) {
    const auto text = reference::pick_text(random, View<TypeParam>(letters), 40);
    this->expect_agreement(text);
  });
}

TYPED_TEST(TokenTest, ANumberFarPastTheEndIsAnsweredAtOnce) {
  const auto text = this->text("a b");
  EXPECT_TRUE(token_at(View<TypeParam>(text), std::numeric_limits<std::int32_t>::max()).empty());
}

}  // namespace
}  // namespace kw::parse
