#include "json_text.h"

#include <charconv>
#include <cstdio>
#include <set>
#include <stdexcept>
#include <vector>

#include "base/unicode.h"

namespace kw::cases {
namespace {

// A lone surrogate is no character, and JSON readers refuse it. Before reading, it is written as
// this private character and four hexadecimal digits; the private character itself likewise.
constexpr char16_t kMark = 0xF8FF;

constexpr std::string_view kMarkBytes = "\xEF\xA3\xBF";

// Far deeper than any case goes, and far from what the reading of nested values can bear.
constexpr int kDeepest = 32;

// 0 where there are no four digits; the JSON reader says what is wrong with them.
unsigned hex_at(std::string_view text, std::size_t at) {
  unsigned number = 0;
  const char* end = text.data() + at + 4;
  return std::from_chars(text.data() + at, end, number, 16).ptr == end ? number : 0;
}

bool is_escape(std::string_view line, std::size_t at) {
  return at + 6 <= line.size() && line[at] == '\\' && line[at + 1] == 'u';
}

bool is_lead(unsigned unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_trail(unsigned unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::string protect(std::string_view line) {
  std::string out;
  for (std::size_t i = 0; i < line.size();) {
    if (line.substr(i, kMarkBytes.size()) == kMarkBytes) {
      out += "\\uf8fff8ff";
      i += kMarkBytes.size();
      continue;
    }
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

// Refuses what the JSON reader would take: a name that occurs twice in an object, of which only the
// last would count, and nesting without end.
class Strictness {
 public:
  bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
    if (depth > kDeepest) throw std::runtime_error("nested too deeply");
    if (event == Json::parse_event_t::object_start) names_.emplace_back();
    if (event == Json::parse_event_t::object_end) names_.pop_back();
    if (event == Json::parse_event_t::key &&
        !names_.back().insert(parsed.get_ref<const std::string&>()).second)
      throw std::runtime_error("the name " + parsed.dump() + " occurs twice in one object");
    return true;
  }

 private:
  std::vector<std::set<std::string>> names_;  // of the objects around the place of reading
};

bool is_lone(std::u16string_view text, std::size_t at) {
  const bool before = at > 0 && is_lead(text[at - 1]);
  const bool behind = at + 1 < text.size() && is_trail(text[at + 1]);
  return (is_lead(text[at]) && !behind) || (is_trail(text[at]) && !before);
}

}  // namespace

Json parse_line(std::string_view line) {
  Strictness strictness;
  return Json::parse(protect(line), [&](int depth, Json::parse_event_t event, Json& parsed) {
    return strictness(depth, event, parsed);
  });
}

Json json_text(std::u16string_view text) {
  std::u16string marked;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != kMark && !is_lone(text, i)) {
      marked += text[i];
      continue;
    }
    char digits[8];
    std::snprintf(digits, sizeof digits, "%04x", static_cast<unsigned>(text[i]));
    marked += kMark;
    marked.append(digits, digits + 4);
  }
  return to_utf8(marked);
}

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

std::string shown_json(const Json& value) {
  return value.is_string() ? shown(units(value)) : value.dump();
}

}  // namespace kw::cases
