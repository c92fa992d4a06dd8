// Comparison of texts: by code unit, or as text, without regard to case.
//
// As text means: both sides in upper case (case_map.h), then by code unit. A text that begins
// another one comes before it.
#pragma once

#include <cstddef>
#include <string_view>

namespace kw {

// -1, 0 or 1, as `left` comes before, with or after `right`.
int compare_binary(std::u16string_view left, std::u16string_view right) noexcept;
int compare_text(std::u16string_view left, std::u16string_view right) noexcept;

// compare_text(left, right) == 0.
bool equal_text(std::u16string_view left, std::u16string_view right) noexcept;

// Equal for texts that are equal_text; good in every bit. Values hold for one run of the program:
// they depend on the machine's byte order and word size.
std::size_t hash_text(std::u16string_view text) noexcept;

}  // namespace kw
