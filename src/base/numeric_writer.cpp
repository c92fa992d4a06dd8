#include <charconv>

#include "base/numeric_text.h"

namespace kw {
namespace {

template <class Number, class... Form>
NumberText write(Number value, Form... form) noexcept {
  NumberText text;
  char* const end =
      std::to_chars(text.characters, text.characters + sizeof text.characters, value, form...).ptr;
  text.size = static_cast<unsigned char>(end - text.characters);
  return text;
}

template <class Float>
NumberText write_float(Float value, int digits) noexcept {
  if (value == 0) return write(0);
  NumberText text = write(value, std::chars_format::general, digits);
  for (char& character : text.characters) {
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 0x20);
  }
  return text;
}

std::u16string as_units(std::string_view text) { return {text.begin(), text.end()}; }

}  // namespace

NumberText write_number(std::int32_t value) noexcept { return write(value); }
NumberText write_number(float value) noexcept { return write_float(value, 7); }
NumberText write_number(double value) noexcept { return write_float(value, 15); }

std::u16string number_text(std::int32_t value) { return as_units(write_number(value)); }
std::u16string number_text(float value) { return as_units(write_number(value)); }
std::u16string number_text(double value) { return as_units(write_number(value)); }

}  // namespace kw
