#include "tool/json_writer.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

#include "base/unicode.h"

namespace kw::tool {
namespace {

bool is_lead(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_trail(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::string escape(char16_t unit) {
  switch (unit) {
    case u'"':
      return "\\\"";
    case u'\\':
      return "\\\\";
    case u'\n':
      return "\\n";
    case u'\r':
      return "\\r";
    case u'\t':
      return "\\t";
    default:
      break;
  }
  char text[8];
  std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(unit));
  return text;
}

bool needs_escape(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (unit < 0x20 || unit == u'"' || unit == u'\\' || unit == 0x7F) return true;
  if (is_lead(unit)) return at + 1 == text.size() || !is_trail(text[at + 1]);
  return is_trail(unit) && (at == 0 || !is_lead(text[at - 1]));
}

}  // namespace

void JsonWriter::begin(char opener, char closer, bool lines) {
  before_value();
  out_ << std::string_view(&opener, 1);
  levels_.push_back({closer, lines, true});
}

void JsonWriter::begin_lines() { begin('[', ']', true); }

void JsonWriter::end() {
  const Level level = levels_.back();
  levels_.pop_back();
  if (level.lines && !level.empty) out_ << "\n";
  out_ << std::string_view(&level.closer, 1);
  if (levels_.empty()) out_ << "\n";
}

void JsonWriter::before_value() {
  if (after_key_) {
    after_key_ = false;
    return;
  }
  if (levels_.empty()) return;
  Level& level = levels_.back();
  if (!level.empty) out_ << (level.lines ? "," : ", ");
  if (level.lines) out_ << "\n  ";
  level.empty = false;
}

JsonWriter& JsonWriter::key(std::string_view name) { return key(from_utf8(name)); }

JsonWriter& JsonWriter::key(std::u16string_view name) {
  before_value();
  write_quoted(name);
  out_ << ": ";
  after_key_ = true;
  return *this;
}

void JsonWriter::text(std::u16string_view value) {
  before_value();
  write_quoted(value);
}

void JsonWriter::text(std::string_view utf8) { text(from_utf8(utf8)); }

void JsonWriter::write_quoted(std::u16string_view value) {
  out_ << "\"";
  std::size_t plain = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (!needs_escape(value, i)) continue;
    out_ << value.substr(plain, i - plain) << escape(value[i]);
    plain = i + 1;
  }
  out_ << value.substr(plain) << "\"";
}

void JsonWriter::number(std::int64_t value) {
  before_value();
  out_ << std::to_string(value);
}

template <class T>
void JsonWriter::write_real(T value) {
  if (std::isnan(value)) return text("nan");
  if (std::isinf(value)) return text(value > 0 ? "inf" : "-inf");
  before_value();
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  out_ << std::string_view(digits, static_cast<std::size_t>(end - digits));
}

void JsonWriter::number(float value) { write_real(value); }
void JsonWriter::number(double value) { write_real(value); }

void JsonWriter::boolean(bool value) {
  before_value();
  out_ << (value ? "true" : "false");
}

void JsonWriter::null() {
  before_value();
  out_ << "null";
}

}  // namespace kw::tool
