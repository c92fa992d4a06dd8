// What a caller gets of the text of a value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kw::ini {

// The text as it is handed out: one outer pair of equal quotes, '"' or "'", is dropped, then it is
// cut to `capacity` - 1 bytes, for a buffer of that many with the terminating NUL.
std::string_view handed_out(std::string_view text, std::size_t capacity) noexcept;

// A default on its way out: it loses the blanks at its end (of blanks alone the first stays), then
// goes the way of a value.
std::string_view handed_out_default(std::string_view text, std::size_t capacity) noexcept;

// The whole number that `text` begins with: blanks, a sign, "0x", "0o" or "0b" in small letters,
// digits. 0 where there are none; a number too large is reduced modulo 2^32.
std::int32_t leading_integer(std::string_view text) noexcept;

}  // namespace kw::ini
