#include "json_text.h"

#include <cctype>
#include <stdexcept>

#include "base/unicode.h"

namespace kw::cases {
namespace {

// A lone surrogate is no character, and JSON readers refuse it. Before reading, it is written as
// this private character and four hexadecimal digits; the private character itself likewise.
constexpr char16_t kMark = 0xF8FF;

unsigned hex_at(std::string_view text, std::size_t at) {
  return static_cast<unsigned>(std::stoul(std::string(text.substr(at, 4)), nullptr, 16));
}

bool is_escape(std::string_view line, std::size_t at) {
  return at + 6 <= line.size() && line[at] == '\\' && line[at + 1] == 'u';
}

bool is_lead(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_trail(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::string protect(std::string_view line) {
  std::string out;
  for (std::size_t i = 0; i < line.size();) {
    if (line[i] != '\\' || i + 1 >= line.size()) {
      out += line[i++];
      continue;
    }
    if (!is_escape(line, i)) {
      out.append(line.substr(i, 2));
      i += 2;
      continue;
    }
    const unsigned unit = hex_at(line, i + 2);
    if (is_lead(unit) && is_escape(line, i + 6) && is_trail(hex_at(line, i + 8))) {
      out.append(line.substr(i, 12));
      i += 12;
      continue;
    }
    if (unit == kMark || is_lead(unit) || is_trail(unit))
      out.append("\\uf8ff").append(line.substr(i + 2, 4));
    else
      out.append(line.substr(i, 6));
    i += 6;
  }
  return out;
}

}  // namespace

Json parse_line(std::string_view line) { return Json::parse(protect(line)); }

std::u16string units(const Json& text) {
  const std::u16string raw = from_utf8(text.get_ref<const std::string&>());
  std::u16string result;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] != kMark || i + 4 >= raw.size()) {
      result += raw[i];
      continue;
    }
    const std::string digits(raw.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                             raw.begin() + static_cast<std::ptrdiff_t>(i) + 5);
    result += static_cast<char16_t>(hex_at(digits, 0));
    i += 4;
  }
  return result;
}

std::string bytes(const Json& text) {
  std::string result;
  for (const char16_t unit : units(text)) {
    if (unit > 0xFF) throw std::runtime_error("file content holds a character above U+00FF");
    result += static_cast<char>(unit);
  }
  return result;
}

std::string shown(std::u16string_view text) {
  std::string result = "\"";
  char digits[8];
  for (const char16_t unit : text) {
    if (unit >= 0x20 && unit < 0x7F) {
      result += static_cast<char>(unit);
      continue;
    }
    std::snprintf(digits, sizeof digits, "\\u%04x", static_cast<unsigned>(unit));
    result += digits;
  }
  return result + '"';
}

std::string shown_bytes(std::string_view text) {
  std::u16string wide;
  for (const char c : text) wide += static_cast<char16_t>(static_cast<unsigned char>(c));
  return shown(wide);
}

}  // namespace kw::cases
