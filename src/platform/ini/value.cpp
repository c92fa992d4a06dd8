#include "platform/ini/value.h"

namespace kw::ini {
namespace {

// The value of a digit in any base up to 16; 16 for what is no digit.
std::uint32_t digit_value(char digit) noexcept {
  if (digit >= '0' && digit <= '9') return static_cast<std::uint32_t>(digit - '0');
  if (digit >= 'a' && digit <= 'f') return static_cast<std::uint32_t>(digit - 'a') + 10;
  if (digit >= 'A' && digit <= 'F') return static_cast<std::uint32_t>(digit - 'A') + 10;
  return 16;
}

// Takes the prefix of a base off the text; 10 where there is none.
std::uint32_t take_base(std::string_view& text) noexcept {
  const std::string_view prefix = text.substr(0, 2);
  const std::uint32_t base = prefix == "0x" ? 16 : prefix == "0o" ? 8 : prefix == "0b" ? 2 : 10;
  if (base != 10) text.remove_prefix(prefix.size());
  return base;
}

}  // namespace

std::string_view handed_out(std::string_view text, std::size_t capacity) noexcept {
  if (text.size() >= 2 && (text.front() == '"' || text.front() == '\'') &&
      text.front() == text.back()) {
    text = text.substr(1, text.size() - 2);
  }
  return text.substr(0, capacity > 0 ? capacity - 1 : 0);
}

std::string_view handed_out_default(std::string_view text, std::size_t capacity) noexcept {
  while (text.size() > 1 && text.back() == ' ') text.remove_suffix(1);
  return handed_out(text, capacity);
}

std::int32_t leading_integer(std::string_view text) noexcept {
  while (!text.empty() && static_cast<unsigned char>(text.front()) <= ' ') text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::uint32_t base = take_base(text);
  std::uint32_t number = 0;
  for (; !text.empty() && digit_value(text.front()) < base; text.remove_prefix(1)) {
    number = number * base + digit_value(text.front());
  }
  return static_cast<std::int32_t>(negative ? 0 - number : number);
}

}  // namespace kw::ini
