#include "platform/guid_text.h"

#include <charconv>

namespace kw::platform {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
// How the 32 digits are grouped.
constexpr std::string_view kShape = "00000000-0000-0000-0000-000000000000";

void append_hex(std::string& text, std::uint32_t value, int digits) {
  for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4)
    text.push_back(kDigits[(value >> shift) & 0xF]);
}

bool has_shape(std::string_view text) {
  if (text.size() != kShape.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char upper = text[i] >= 'a' ? static_cast<char>(text[i] - 32) : text[i];
    const bool fits = kShape[i] == '-' ? text[i] == '-' : kDigits.find(upper) != kDigits.npos;
    if (!fits) return false;
  }
  return true;
}

std::uint32_t hex(std::string_view text, std::size_t from, std::size_t digits) {
  std::uint32_t value = 0;
  std::from_chars(text.data() + from, text.data() + from + digits, value, 16);
  return value;
}

}  // namespace

std::string guid_text(const GUID& guid) {
  std::string text = "{";
  append_hex(text, guid.Data1, 8);
  text += '-';
  append_hex(text, guid.Data2, 4);
  text += '-';
  append_hex(text, guid.Data3, 4);
  for (int i = 0; i < 8; ++i) {
    if (i == 0 || i == 2) text += '-';
    append_hex(text, guid.Data4[i], 2);
  }
  return text + '}';
}

std::optional<GUID> parse_guid(std::string_view text) {
  if (text.size() > 2 && text.front() == '{' && text.back() == '}')
    text = text.substr(1, text.size() - 2);
  if (!has_shape(text)) return std::nullopt;
  GUID guid = {};
  guid.Data1 = hex(text, 0, 8);
  guid.Data2 = static_cast<std::uint16_t>(hex(text, 9, 4));
  guid.Data3 = static_cast<std::uint16_t>(hex(text, 14, 4));
  for (std::size_t i = 0; i < 8; ++i)
    guid.Data4[i] = static_cast<std::uint8_t>(hex(text, (i < 2 ? 19 : 20) + 2 * i, 2));
  return guid;
}

}  // namespace kw::platform
