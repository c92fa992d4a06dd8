// Radix sort of numbers of 16 and 32 bits, by all their digits.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "sort/number_key.h"
#include "sort/radix_digits.h"

namespace kw::sort {

// Digits of kBits bits at places that are known to the compiler.
template <int kBits, class T>
class FixedDigits {
 public:
  static constexpr std::size_t kDigits = (8 * sizeof(T) + kBits - 1) / kBits;

  // Gives where the sorted numbers are: `from` or `to`.
  static T* sort(T* from, T* to, std::size_t count) {
    FixedDigits digits;
    digits.count_all(from, count, std::make_index_sequence<kDigits>{});
    digits.move_all(from, to, count, std::make_index_sequence<kDigits>{});
    return from;
  }

 private:
  static constexpr std::size_t kValues = std::size_t{1} << kBits;

  template <std::size_t kDigit>
  static std::size_t digit_of(T number) {
    constexpr int kShift = kBits * static_cast<int>(kDigit);
    return static_cast<std::size_t>(key_of(number) >> kShift) & (kValues - 1);
  }
  template <std::size_t... kDigit>
  void count_all(const T* numbers, std::size_t count, std::index_sequence<kDigit...>) {
    for (std::size_t k = 0; k < count; ++k) (++counts_[kDigit][digit_of<kDigit>(numbers[k])], ...);
  }
  template <std::size_t... kDigit>
  void move_all(T*& from, T*& to, std::size_t count, std::index_sequence<kDigit...>) {
    (move<kDigit>(from, to, count), ...);
  }
  // A digit that all numbers share moves none.
  template <std::size_t kDigit>
  void move(T*& from, T*& to, std::size_t count) {
    auto& counts = counts_[kDigit];
    if (counts[digit_of<kDigit>(from[0])] == count) return;
    counts_to_positions(counts.data(), kValues);
    move_by_digit(from, to, count, counts.data(), digit_of<kDigit>);
    std::swap(from, to);
  }

  std::array<std::array<std::uint32_t, kValues>, kDigits> counts_ = {};
};

// Sorts numbers that have one order, ascending; `work` has room for `count` numbers.
template <class T>
void short_radix_sort(T* numbers, T* work, std::size_t count) {
  const T* const sorted = sizeof(T) == 2 || count < kShortDigitsBelow
                              ? FixedDigits<kShortDigitBits, T>::sort(numbers, work, count)
                              : FixedDigits<kDigitBits, T>::sort(numbers, work, count);
  if (sorted != numbers) std::copy_n(sorted, count, numbers);
}

}  // namespace kw::sort
