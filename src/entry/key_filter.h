// Which typed characters a text box for numbers takes.
#pragma once

#include <cstdint>
#include <string_view>

namespace kw::entry {

enum class NumberKind { whole, real };

struct NumberBox {
  NumberKind kind;
  bool positive;             // takes no minus
  std::u16string_view text;  // what stands in the box
  std::int16_t max_length;   // so many characters fill it
  std::int16_t selected;     // length of what a typed character replaces
};

// `code`, or 0 when the box does not take that character.
std::int16_t filtered_key(std::int16_t code, const NumberBox& box) noexcept;

}  // namespace kw::entry
