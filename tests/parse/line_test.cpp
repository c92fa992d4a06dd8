#include "parse/line.h"

#include <string>

#include "parse/alphabets.h"
#include "reference/parse_record.h"

namespace kw::parse {
namespace {

template <class Char>
class LineTest : public ScannerTest<Char> {
 protected:
  using typename ScannerTest<Char>::Text;

  static void expect_agreement(View<Char> text) {
    Text expected_text(text);
    do {
      const Text expected = reference::parse_record(expected_text);
      const View<Char> line = take_line(text);
      ASSERT_EQ(Text(line), expected);
      ASSERT_EQ(Text(text), expected_text);
    } while (!text.empty());
  }
};

TYPED_TEST_SUITE(LineTest, Alphabets);

TYPED_TEST(LineTest, AgreesWithTheStepsOnAllShortTexts) {
  this->for_all("\r\n a", 8, [&](auto text) { this->expect_agreement(text); });
}

TYPED_TEST(LineTest, AgreesWithTheStepsOnRandomTexts) {
  const auto letters = this->text("\r\r\n  abcdefg");
  reference::for_random_inputs(3, [&](reference::Random& random) {
    const auto text = reference::pick_text(random, View<TypeParam>(letters), 120);
    this->expect_agreement(text);
  });
}

}  // namespace
}  // namespace kw::parse
