// The bytes of a line that a record shows as blanks.
#pragma once

namespace kw::store {

// Shown as a blank though it is another character: a tab or a no-break space.
constexpr bool is_odd_blank(char byte) noexcept { return byte == '\t' || byte == '\xA0'; }

constexpr bool is_line_blank(char byte) noexcept { return byte == ' ' || is_odd_blank(byte); }

}  // namespace kw::store
