// The tests of the scanner run on 8-bit and on 16-bit text.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "reference/all_texts.h"
#include "reference/basic_text.h"
#include "reference/random_inputs.h"

namespace kw::parse {

using Alphabets = testing::Types<char, char16_t>;

template <class Char>
class ScannerTest : public testing::Test {
 protected:
  using Text = std::basic_string<Char>;

  static Text text(const char* ascii) { return reference::text_of<Char>(ascii); }

  // Every text over `alphabet` up to the length that the time allows.
  template <class Visit>
  static void for_all(const char* alphabet, std::size_t longest, Visit visit) {
    const Text letters = text(alphabet);
    reference::for_all_texts(std::basic_string_view<Char>(letters),
                             longest + (reference::long_tests() ? 1 : 0), visit);
  }
};

}  // namespace kw::parse
