// kw::Boolean: the 16-bit truth value of automation callers.
#pragma once

#include <cstdint>

namespace kw {

// True is -1 and false is 0. Any other bits that a caller hands in are kept; they count as true,
// but are not exactly true.
//
//   Boolean found = true;
//   found.bits();                          // -1
//   Boolean::from_bits(1);                 // true
//   Boolean::from_bits(1).exactly_true();  // false
class Boolean {
 public:
  constexpr Boolean() noexcept = default;
  constexpr Boolean(bool value) noexcept : bits_(value ? std::int16_t{-1} : std::int16_t{0}) {}
  // The caller's own bits.
  static constexpr Boolean from_bits(std::int16_t bits) noexcept { return Boolean(bits, 0); }

  // True for any bits but 0.
  constexpr operator bool() const noexcept { return bits_ != 0; }
  constexpr std::int16_t bits() const noexcept { return bits_; }
  // Whether all bits are set: what callers compare with their word for true.
  constexpr bool exactly_true() const noexcept { return bits_ == -1; }

 private:
  constexpr Boolean(std::int16_t bits, int) noexcept : bits_(bits) {}

  std::int16_t bits_ = 0;
};

static_assert(sizeof(Boolean) == 2);

}  // namespace kw
