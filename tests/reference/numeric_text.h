// The notation of numbers, transcribed from its description with no regard to speed.
#pragma once

#include <cstdlib>
#include <string>
#include <string_view>

namespace kw::reference {

inline bool all_digits(std::string_view text) {
  return text.find_first_not_of("0123456789") == std::string_view::npos;
}

inline std::string_view without_sign(std::string_view text) {
  const bool sign = !text.empty() && (text.front() == '+' || text.front() == '-');
  return text.substr(sign ? 1 : 0);
}

inline std::string_view without_blanks_around(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

inline bool is_exponent(std::string_view text) {
  const std::string_view digits = without_sign(text);
  return !digits.empty() && all_digits(digits);
}

inline bool is_digits_with_point(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos) return !text.empty() && all_digits(text);
  const std::string_view whole = text.substr(0, point);
  const std::string_view fraction = text.substr(point + 1);
  return whole.size() + fraction.size() > 0 && all_digits(whole) && all_digits(fraction);
}

inline bool is_numeric(std::string_view text) {
  const std::string_view number = without_sign(without_blanks_around(text));
  const std::size_t e = number.find_first_of("Ee");
  if (e == std::string_view::npos) return is_digits_with_point(number);
  return is_digits_with_point(number.substr(0, e)) && is_exponent(number.substr(e + 1));
}

// The length of the longest prefix that is numeric, 0 when there is none.
inline std::size_t numeric_prefix(std::string_view text) {
  std::size_t length = text.size();
  while (length > 0 && !is_numeric(text.substr(0, length))) --length;
  return length;
}

// The value of a numeric text; the C library rounds correctly and reads more notations than this
// one.
inline double number_value(std::string_view text) {
  return std::strtod(std::string(without_blanks_around(text)).c_str(), nullptr);
}

}  // namespace kw::reference
