// The code page of files: single bytes to 16-bit code units and back.
//
// A code page agrees with ASCII on the bytes 00 to 7F, and all 256 bytes map both ways. The page in
// use is 1252, whose five undefined bytes 81, 8D, 8F, 90 and 9D stand for U+0081, U+008D, U+008F,
// U+0090 and U+009D, until the program's start-up sets another one.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/case_map.h"

namespace kw {

// The tables of one code page.
class CodePage {
 public:
  // `upper_half` holds the characters of the bytes 80 to FF. A character that stands there twice is
  // encoded as the first of its bytes.
  explicit constexpr CodePage(std::span<const char16_t, 128> upper_half) noexcept;

  constexpr char16_t decode(unsigned char byte) const noexcept { return units_[byte]; }

  // The byte of a character, nothing when the page lacks it.
  constexpr std::optional<unsigned char> encode(char16_t unit) const noexcept;

  // Upper case of the byte's character, which may lie outside the page (that of "µ" does): two
  // bytes are the same character as text when these are equal.
  constexpr char16_t fold(unsigned char byte) const noexcept { return folds_[byte]; }

  // The byte of the lower-case character; the byte itself when the page lacks that.
  constexpr unsigned char lower(unsigned char byte) const noexcept { return lowers_[byte]; }

  // Whether the bytes A0 to FF decode to U+00A0 to U+00FF.
  constexpr bool is_latin_1() const noexcept { return latin_1_; }

 private:
  // Open addressing; a slot's byte is 0 where the slot is free, for only bytes above 7F are kept.
  static constexpr unsigned kSlots = 512;
  static constexpr unsigned first_slot(char16_t unit) noexcept { return unit * 0x9E3779B1u >> 23; }

  constexpr void add(char16_t unit, unsigned char byte) noexcept;
  constexpr void derive_cases() noexcept;

  std::array<char16_t, 256> units_{};
  std::array<char16_t, 256> folds_{};
  std::array<unsigned char, 256> lowers_{};
  std::array<char16_t, kSlots> slot_units_{};
  std::array<unsigned char, kSlots> slot_bytes_{};
  bool latin_1_ = true;
};

constexpr CodePage::CodePage(std::span<const char16_t, 128> upper_half) noexcept {
  for (unsigned byte = 0; byte < 0x80; ++byte) units_[byte] = static_cast<char16_t>(byte);
  for (unsigned byte = 0x80; byte < 0x100; ++byte) {
    units_[byte] = upper_half[byte - 0x80];
    if (byte >= 0xA0 && units_[byte] != byte) latin_1_ = false;
    add(units_[byte], static_cast<unsigned char>(byte));
  }
  derive_cases();
}

constexpr void CodePage::add(char16_t unit, unsigned char byte) noexcept {
  if (encode(unit)) return;
  unsigned slot = first_slot(unit);
  while (slot_bytes_[slot % kSlots] != 0) ++slot;
  slot_units_[slot % kSlots] = unit;
  slot_bytes_[slot % kSlots] = byte;
}

constexpr void CodePage::derive_cases() noexcept {
  for (unsigned byte = 0; byte < 0x100; ++byte) {
    const auto own = static_cast<unsigned char>(byte);
    folds_[byte] = to_upper(units_[byte]);
    lowers_[byte] = encode(to_lower(units_[byte])).value_or(own);
  }
}

constexpr std::optional<unsigned char> CodePage::encode(char16_t unit) const noexcept {
  if (unit < 0x80) return static_cast<unsigned char>(unit);
  for (unsigned slot = first_slot(unit);; ++slot) {
    const unsigned char byte = slot_bytes_[slot % kSlots];
    if (byte == 0) return std::nullopt;
    if (slot_units_[slot % kSlots] == unit) return byte;
  }
}

namespace detail {
extern constinit const CodePage* current_code_page;
}

// The page in use.
inline const CodePage& code_page() noexcept { return *detail::current_code_page; }

// Puts `page` in use. For a program's start-up, before any text is converted and while one thread
// runs; `page` must live as long as the program.
void set_code_page(const CodePage& page) noexcept;

const CodePage& code_page_1252() noexcept;

inline char16_t decode(unsigned char byte) noexcept { return code_page().decode(byte); }
inline std::optional<unsigned char> encode(char16_t unit) noexcept {
  return code_page().encode(unit);
}
inline char16_t fold_byte(unsigned char byte) noexcept { return code_page().fold(byte); }
inline unsigned char lower_byte(unsigned char byte) noexcept { return code_page().lower(byte); }

// Writes bytes.size() code units to `out`.
void widen(std::string_view bytes, char16_t* out) noexcept;
std::u16string widen(std::string_view bytes);

// The bytes of `text`, as many as it has code units; "?" for each that the page lacks.
std::string narrow(std::u16string_view text);
void narrow_append(std::u16string_view text, std::string& out);

// For something sought: true, and `out` holds the bytes of `text`; false when the page lacks one of
// its characters, so that no file can hold it (`out` is then unspecified).
bool narrow_exact(std::u16string_view text, std::string& out);

}  // namespace kw
