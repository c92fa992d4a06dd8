// Numbers as text: one reader and one writer, whatever the locale of the program is.
//
// The reader takes blanks (character 32 only), a sign, digits with an optional decimal separator
// and fraction (".5" and "5." are numbers, "." is none), an exponent ("E" or "e", a sign, digits),
// and blanks again; nothing else: no "nan", "inf", hexadecimal, thousands separator or currency.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kw {

// The number that `text` reads as, correctly rounded; nothing when it reads as none. "1E999" is
// numeric text: it gives infinity, which every conversion below refuses; "1E-999" gives 0.
// Bytes are read in the code page in use.
std::optional<double> parse_number(std::u16string_view text) noexcept;
std::optional<double> parse_number(std::string_view text) noexcept;

struct LeadingNumber {
  double value = 0;
  std::size_t length = 0;  // of the prefix, its blanks included; 0: no number stands there
};

// The longest prefix of `text` that the reader accepts: " 12 kg" gives 12 and 4, "1e" gives 1
// and 1.
LeadingNumber leading_number(std::u16string_view text) noexcept;
LeadingNumber leading_number(std::string_view text) noexcept;

// The decimal separator of the reader, "." until the program's start-up sets the host's. The writer
// always writes ".".
void set_decimal_separator(char16_t separator) noexcept;

// The number as a narrower type; halves go to the even neighbour. Error 6 (overflow) when it does
// not fit: out of range, infinite or, but for the two float types, not a number.
std::int16_t to_int16(double value);
std::int32_t to_int32(double value);
float to_single(double value);
double to_double(double value);

// A written number, for callers that copy it on.
struct NumberText {
  char characters[24];  // the longest is "-1.23456789012345E-308"
  unsigned char size = 0;

  operator std::string_view() const noexcept { return {characters, size}; }
};

// At most 7 (single) or 15 (double) significant digits, in the form that %G chooses: no trailing
// zeros; an exponent of at least two digits when it is below -4 or not below the number of digits.
// Minus zero is "0".
NumberText write_number(std::int32_t value) noexcept;
NumberText write_number(float value) noexcept;
NumberText write_number(double value) noexcept;

std::u16string number_text(std::int32_t value);
std::u16string number_text(float value);
std::u16string number_text(double value);

}  // namespace kw
