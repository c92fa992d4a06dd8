// Upper and lower case, one code unit to one code unit.
//
// The simple mappings of the whole basic plane, the same on every platform and in every locale.
// Surrogates, and characters without a simple mapping inside the plane, map to themselves: the
// length of a text never changes ("ß" stays "ß" in upper case).
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/case_table.h"

namespace kw {

namespace detail {

constexpr char16_t map_case(const std::uint8_t* blocks, char16_t unit) noexcept {
  const auto& deltas = kCaseDelta[blocks[unit >> kCaseBlockBits]];
  return static_cast<char16_t>(unit + deltas[unit & ((1u << kCaseBlockBits) - 1)]);
}

}  // namespace detail

constexpr char16_t to_upper(char16_t unit) noexcept {
  if (unit < 0x80) return static_cast<char16_t>(unit - (unit >= u'a' && unit <= u'z' ? 0x20 : 0));
  return detail::map_case(detail::kUpperBlock, unit);
}

constexpr char16_t to_lower(char16_t unit) noexcept {
  if (unit < 0x80) return static_cast<char16_t>(unit + (unit >= u'A' && unit <= u'Z' ? 0x20 : 0));
  return detail::map_case(detail::kLowerBlock, unit);
}

// Every code unit of `text` mapped in place.
void make_upper(std::span<char16_t> text) noexcept;
void make_lower(std::span<char16_t> text) noexcept;

std::u16string upper(std::u16string_view text);
std::u16string lower(std::u16string_view text);

}  // namespace kw
