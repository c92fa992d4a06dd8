// Whole numbers that order as the numbers of the sorts do.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace kw::sort {

template <std::size_t kBytes>
struct WordOf;
template <>
struct WordOf<2> {
  using Type = std::uint16_t;
};
template <>
struct WordOf<4> {
  using Type = std::uint32_t;
};
template <>
struct WordOf<8> {
  using Type = std::uint64_t;
};

// The bits of a number, and the key made of them.
template <class T>
using Word = typename WordOf<sizeof(T)>::Type;

template <class T>
inline constexpr int kWordBits = static_cast<int>(8 * sizeof(T));

template <class T>
inline constexpr Word<T> kSignBit = static_cast<Word<T>>(Word<T>{1} << (kWordBits<T> - 1));

// Of two numbers the lesser has the lesser key. A minus zero is less than a zero; a NaN may lie on
// either side of all numbers.
template <class T>
Word<T> key_of(T number) noexcept {
  const auto bits = std::bit_cast<Word<T>>(number);
  if constexpr (std::is_floating_point_v<T>) {
    const auto all_when_negative = static_cast<Word<T>>(0 - (bits >> (kWordBits<T> - 1)));
    return static_cast<Word<T>>(bits ^ (all_when_negative | kSignBit<T>));
  } else {
    return static_cast<Word<T>>(bits ^ kSignBit<T>);
  }
}

}  // namespace kw::sort
