// Radix sort of numbers of 64 bits, by the upper bits in which they differ.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "sort/number_key.h"
#include "sort/quick_numbers.h"
#include "sort/radix_digits.h"

namespace kw::sort {

inline int digit_bits(std::size_t count) {
  return count < kShortDigitsBelow ? kShortDigitBits : kDigitBits;
}

// Where in the key a digit lies.
struct Digit {
  int shift;
  std::size_t mask;

  template <class Key>
  std::size_t of(Key key) const noexcept {
    return static_cast<std::size_t>(key >> shift) & mask;
  }
};

// The key bits from `low` up to `high`, without it, as digits of nearly equal width.
template <int kDigits>
std::array<Digit, kDigits> digits_between(int low, int high) {
  std::array<Digit, kDigits> digits;
  for (int k = 0; k < kDigits; ++k) {
    const int width = (high - low + kDigits - k - 1) / (kDigits - k);
    digits[static_cast<std::size_t>(k)] = {low, (std::size_t{1} << width) - 1};
    low += width;
  }
  return digits;
}

using Histogram = std::array<std::uint32_t, std::size_t{1} << kDigitBits>;

// Sorts by the key bits from `low` to `high`, in as many passes as there are digits. Gives where
// the numbers are then: `from` or `to`.
template <int kDigits, class T>
T* sort_by_digits(T* from, T* to, std::size_t count, int low, int high) {
  const auto digits = digits_between<kDigits>(low, high);
  std::array<Histogram, kDigits> counts;
  for (std::size_t d = 0; d < kDigits; ++d) std::fill_n(counts[d].begin(), digits[d].mask + 1, 0u);
  for (std::size_t k = 0; k < count; ++k) {
    const auto key = key_of(from[k]);
    for (std::size_t d = 0; d < kDigits; ++d) ++counts[d][digits[d].of(key)];
  }
  for (std::size_t d = 0; d < kDigits; ++d) {
    const Digit digit = digits[d];
    counts_to_positions(counts[d].data(), digit.mask + 1);
    move_by_digit(from, to, count, counts[d].data(),
                  [digit](T number) { return digit.of(key_of(number)); });
    std::swap(from, to);
  }
  return from;
}

template <class T>
T* sort_by_bits(T* from, T* to, std::size_t count, int low, int high) {
  const int width = digit_bits(count);
  switch ((high - low + width - 1) / width) {
    case 0:
      return from;
    case 1:
      return sort_by_digits<1>(from, to, count, low, high);
    case 2:
      return sort_by_digits<2>(from, to, count, low, high);
    case 3:
      return sort_by_digits<3>(from, to, count, low, high);
    default:
      return sort_by_digits<4>(from, to, count, low, high);
  }
}

// Sorts, ascending, numbers that have one order, and whose keys differ in the bits below `high` at
// most. `work` has room for `count` numbers.
//
// The upper bits alone leave few numbers out of order. These are moved into place one by one; where
// many numbers share their upper bits, they are sorted apart by the remaining ones.
template <class T>
class LongRadixSort {
 public:
  LongRadixSort(T* numbers, T* work, std::size_t count, int high)
      : numbers_(numbers),
        work_(work),
        count_(count),
        low_(std::max(0, high - wanted_bits(count))) {
    sorted_ = sort_by_bits(numbers, work, count, low_, high);
  }

  void finish() {
    if (low_ > 0) return settle_all();
    if (sorted_ != numbers_) std::copy_n(sorted_, count_, numbers_);
  }

 private:
  static constexpr std::size_t kFew = 16;

  static int wanted_bits(std::size_t count) {
    constexpr std::size_t kMany = std::size_t{1} << 24;
    if (digit_bits(count) == kShortDigitBits) return 4 * kShortDigitBits;
    return (count < kMany ? 3 : 4) * kDigitBits;
  }

  void settle_all() {
    for (std::size_t k = 0; k < count_;) {
      const T number = sorted_[k];
      std::size_t at = k;
      while (at > 0 && number < numbers_[at - 1] && k - at < kFew) {
        numbers_[at] = numbers_[at - 1];
        --at;
      }
      numbers_[at] = number;
      k = k - at < kFew ? k + 1 : settle_group(k);
    }
  }
  Word<T> upper_bits(T number) const { return static_cast<Word<T>>(key_of(number) >> low_); }
  // Sorts the numbers that share their upper bits with the one at `k`, which are in place up to `k`
  // but for that one. Gives the position after them.
  std::size_t settle_group(std::size_t k) {
    const Word<T> upper = upper_bits(numbers_[k]);
    std::size_t first = k;
    std::size_t last = k + 1;
    while (first > 0 && upper_bits(numbers_[first - 1]) == upper) --first;
    for (; last < count_ && upper_bits(sorted_[last]) == upper; ++last)
      numbers_[last] = sorted_[last];
    sort_group(numbers_ + first, work_ + first, last - first);
    return last;
  }
  void sort_group(T* group, T* work, std::size_t count) {
    constexpr std::size_t kFewForRadix = 1000;
    if (count < kFewForRadix) return quick_sort(group, count);
    T* const sorted = sort_by_bits(group, work, count, 0, low_);
    if (sorted != group) std::copy_n(sorted, count, group);
  }

  T* numbers_;
  T* work_;
  std::size_t count_;
  int low_;
  T* sorted_;
};

}  // namespace kw::sort
