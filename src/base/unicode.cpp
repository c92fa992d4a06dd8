#include "base/unicode.h"

#include <cstdint>

namespace kw {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool is_high_surrogate(char32_t unit) noexcept { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low_surrogate(char32_t unit) noexcept { return unit >= 0xDC00 && unit < 0xE000; }

// What may follow a first byte: `count` further bytes, the first of them from `low` to `high`, the
// others from 80 to BF. The narrower ranges keep out overlong forms and numbers above 10FFFF.
struct Sequence {
  int count;
  unsigned char low;
  unsigned char high;
};

Sequence sequence_of(unsigned char first) noexcept {
  if (first >= 0xC2 && first <= 0xDF) return {1, 0x80, 0xBF};
  if (first == 0xE0) return {2, 0xA0, 0xBF};
  if (first >= 0xE1 && first <= 0xEF) return {2, 0x80, 0xBF};
  if (first == 0xF0) return {3, 0x90, 0xBF};
  if (first >= 0xF1 && first <= 0xF3) return {3, 0x80, 0xBF};
  if (first == 0xF4) return {3, 0x80, 0x8F};
  return {0, 0, 0};
}

// Takes one character, which is not ASCII, off `bytes`.
char32_t take_character(std::string_view& bytes) noexcept {
  const auto first = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  auto [count, low, high] = sequence_of(first);
  if (count == 0) return kReplacement;
  char32_t character = first & (0x3Fu >> count);
  for (; count > 0; --count, low = 0x80, high = 0xBF) {
    if (bytes.empty()) return kReplacement;
    const auto next = static_cast<unsigned char>(bytes.front());
    if (next < low || next > high) return kReplacement;
    character = character << 6 | (next & 0x3Fu);
    bytes.remove_prefix(1);
  }
  return character;
}

char16_t* put_units(char32_t character, char16_t* out) noexcept {
  if (character >= 0x10000) {
    *out++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
    character = 0xDC00 + (character & 0x3FF);
  }
  *out++ = static_cast<char16_t>(character);
  return out;
}

// Takes one character, which is not ASCII, off `text`: a pair of surrogates or one code unit.
char32_t take_character(std::u16string_view& text) noexcept {
  const char32_t unit = text.front();
  text.remove_prefix(1);
  if (!is_high_surrogate(unit) || text.empty() || !is_low_surrogate(text.front())) return unit;
  const char32_t low = text.front();
  text.remove_prefix(1);
  return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
}

char* put_bytes(char32_t character, char* out) noexcept {
  const int count = character < 0x800 ? 1 : (character < 0x10000 ? 2 : 3);
  const char32_t mark = (0xFF00u >> (count + 1)) & 0xFF;
  *out++ = static_cast<char>(mark | character >> (6 * count));
  for (int left = count; left-- > 0;) {
    *out++ = static_cast<char>(0x80 | ((character >> (6 * left)) & 0x3F));
  }
  return out;
}

// Copies the ASCII that `text` begins with, takes it off, and gives the new end of the output.
template <class From, class To>
To* copy_ascii(std::basic_string_view<From>& text, To* out) noexcept {
  std::size_t count = 0;
  while (count < text.size() && static_cast<char32_t>(text[count]) < 0x80) {
    *out++ = static_cast<To>(text[count++]);
  }
  text.remove_prefix(count);
  return out;
}

}  // namespace

std::u16string from_utf8(std::string_view bytes) {
  // No sequence gives more code units than it has bytes.
  std::u16string result(bytes.size(), u'\0');
  char16_t* out = copy_ascii(bytes, result.data());
  while (!bytes.empty()) {
    out = put_units(take_character(bytes), out);
    out = copy_ascii(bytes, out);
  }
  result.resize(static_cast<std::size_t>(out - result.data()));
  return result;
}

std::string to_utf8(std::u16string_view text) {
  // A code unit gives three bytes at most; what is ASCII throughout needs one.
  std::string result(text.size(), '\0');
  char* out = copy_ascii(text, result.data());
  if (text.empty()) return result;
  const auto done = static_cast<std::size_t>(out - result.data());
  result.resize(done + 3 * text.size());
  out = result.data() + done;
  while (!text.empty()) {
    out = put_bytes(take_character(text), out);
    out = copy_ascii(text, out);
  }
  result.resize(static_cast<std::size_t>(out - result.data()));
  return result;
}

}  // namespace kw
