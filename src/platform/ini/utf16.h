// INI files in UTF-16, little-endian, which a byte order mark announces.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kw::ini {

inline constexpr std::string_view kUtf16Mark = "\xFF\xFE";

inline bool is_utf16(std::string_view content) noexcept { return content.starts_with(kUtf16Mark); }

// The code units after the mark. An odd byte at the end counts for nothing.
std::u16string utf16_units(std::string_view content);

// The bytes of these code units, without a mark.
std::string utf16_bytes(std::u16string_view units);

// Where in the file the code unit of that number, from 0, begins.
constexpr std::size_t utf16_offset(std::size_t unit) noexcept {
  return kUtf16Mark.size() + 2 * unit;
}

}  // namespace kw::ini
