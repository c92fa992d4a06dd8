#include "platform/ini/utf16.h"

namespace kw::ini {

std::u16string utf16_units(std::string_view content) {
  content.remove_prefix(kUtf16Mark.size());
  std::u16string units(content.size() / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i) {
    const unsigned low = static_cast<unsigned char>(content[2 * i]);
    const unsigned high = static_cast<unsigned char>(content[2 * i + 1]);
    units[i] = static_cast<char16_t>(high << 8 | low);
  }
  return units;
}

std::string utf16_bytes(std::u16string_view units) {
  std::string bytes;
  bytes.reserve(2 * units.size());
  for (const char16_t unit : units) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8));
  }
  return bytes;
}

}  // namespace kw::ini
