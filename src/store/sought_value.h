// The value that an item is to have, compared as text, without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kw::store {

class SoughtValue {
 public:
  // The value in apostrophes. A text without them at both ends is no item's value.
  explicit SoughtValue(std::u16string_view in_apostrophes);

  bool equals(std::string_view value) const noexcept;

  // A quick look at a quoted value, from behind its opening quote to the end of its line: false
  // when it is surely another one.
  bool may_begin(std::string_view text) const noexcept;

 private:
  bool exists_ = false;
  std::u16string folded_;  // upper case
  // In each of the first eight characters, the bits that all its spellings have in common.
  std::uint64_t common_bits_ = 0;
  std::uint64_t common_mask_ = 0;
};

}  // namespace kw::store
