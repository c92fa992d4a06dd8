// The value that an item is to have, compared as text, without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/word_bits.h"

namespace kw::store {

class SoughtValue {
 public:
  // The value in apostrophes. A text without them at both ends is no item's value.
  explicit SoughtValue(std::u16string_view in_apostrophes);

  bool equals(std::string_view value) const noexcept;

  // A quick look at what stands behind the opening quote of a value, where 8 bytes can be read, be
  // they the value's or not: false when it is surely another value.
  bool may_begin(const char* text) const noexcept {
    // Blanks in front of a value are no part of it.
    return any(((load_8(text) ^ common_bits_) & common_mask_) == 0, *text == ' ');
  }

 private:
  bool exists_ = false;
  std::u16string folded_;  // upper case
  // In each of the first eight characters, the bits that all its spellings have in common.
  std::uint64_t common_bits_ = 0;
  std::uint64_t common_mask_ = 0;
};

}  // namespace kw::store
