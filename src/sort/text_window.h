// The next few characters of a text as one number.
//
// The characters lie in it as codes, the first one highest, so that windows order as the texts do
// from that place on. A text that ends has code 0 there, less than any character's. As numbers,
// windows are positive doubles: those order as their bits do, and the partitions of number sorts
// serve for windows too.
//
// A narrow window holds seven characters of Latin-1, nine bits each. Any other character has the
// code kEscape there, and follows in sixteen bits if these are left; then, or otherwise before that
// character, the window ends. A wide window holds three characters of seventeen bits, whatever they
// are.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kw::sort {

enum class WindowKind : std::uint8_t { narrow, wide };

inline constexpr std::size_t kNarrowUnits = 7;
inline constexpr int kNarrowBits = 9;
inline constexpr std::size_t kWideUnits = 3;
inline constexpr int kWideBits = 17;
inline constexpr int kWindowBits = 63;
inline constexpr std::uint64_t kEscape = 258;

// Keeps windows away from the denormal numbers, which a program may have the processor take for 0.
inline constexpr std::uint64_t kWindowOffset = std::uint64_t{1} << 52;

inline double window_of_bits(std::uint64_t bits) {
  return std::bit_cast<double>(bits + kWindowOffset);
}
inline std::uint64_t bits_of_window(double window) {
  return std::bit_cast<std::uint64_t>(window) - kWindowOffset;
}

template <class Fold>
double narrow_window(std::u16string_view text, Fold fold) {
  std::uint64_t bits = 0;
  int left = kWindowBits;
  for (std::size_t k = 0; k < kNarrowUnits && k < text.size(); ++k) {
    const std::uint64_t unit = fold(text[k]);
    left -= kNarrowBits;
    if (unit > 0xFF) {
      bits |= kEscape << left;
      if (left >= 16) bits |= unit << (left - 16);
      break;
    }
    bits |= (unit + 1) << left;
  }
  return window_of_bits(bits);
}

template <class Fold>
double wide_window(std::u16string_view text, Fold fold) {
  std::uint64_t bits = 0;
  int left = kWindowBits;
  for (std::size_t k = 0; k < kWideUnits && k < text.size(); ++k) {
    left -= kWideBits;
    bits |= (std::uint64_t{fold(text[k])} + 1) << left;
  }
  return window_of_bits(bits);
}

// The window at the beginning of `text`. No character is looked at, or folded, that it cannot hold.
template <class Fold>
double window_of(std::u16string_view text, WindowKind kind, Fold fold) {
  return kind == WindowKind::narrow ? narrow_window(text, fold) : wide_window(text, fold);
}

// The kind that holds more of a text like this one.
inline WindowKind kind_for(std::u16string_view text) {
  return text.empty() || text.front() <= 0xFF ? WindowKind::narrow : WindowKind::wide;
}

// How many characters a window holds, and whether the text ends in it.
struct WindowContent {
  std::size_t units;
  bool ends;
};

inline WindowContent content_of(double window, WindowKind kind) {
  const bool narrow = kind == WindowKind::narrow;
  const std::size_t most = narrow ? kNarrowUnits : kWideUnits;
  const int width = narrow ? kNarrowBits : kWideBits;
  int left = kWindowBits;
  for (std::size_t k = 0; k < most; ++k) {
    left -= width;
    const std::uint64_t code = (bits_of_window(window) >> left) & ((std::uint64_t{1} << width) - 1);
    if (code == 0) return {k, true};
    if (narrow && code == kEscape) return {left >= 16 ? k + 1 : k, false};
  }
  return {most, false};
}

}  // namespace kw::sort
