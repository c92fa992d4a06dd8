// What a sort has to know about its numbers before it may choose its method.
#pragma once

#include <bit>
#include <cstddef>
#include <type_traits>

#include "sort/number_key.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kw::sort {

template <class T>
struct NumberSurvey {
  Word<T> varying = 0;      // the bits in which some number differs from another
  Word<T> nans = 0;         // not 0 when there is a NaN
  Word<T> plus_zeros = 0;   // the sign bit is set when there is a zero without a sign
  Word<T> minus_zeros = 0;  // the sign bit is set when there is a zero with a sign

  // Whether every correct order of the numbers is the same order, bit for bit.
  bool one_order() const noexcept {
    return nans == 0 && (plus_zeros & minus_zeros & kSignBit<T>) == 0;
  }
  void add(T number, Word<T> first) noexcept {
    const auto bits = std::bit_cast<Word<T>>(number);
    varying = static_cast<Word<T>>(varying | (bits ^ first));
    if constexpr (std::is_floating_point_v<T>) {
      constexpr auto kAll = static_cast<Word<T>>(~Word<T>{0});
      const Word<T> zero = number == T{0} ? kAll : 0;
      nans |= number != number ? kAll : 0;
      plus_zeros |= zero & ~bits;
      minus_zeros |= zero & bits;
    }
  }
};

// One pass without a branch. Compilers make vectors of it by themselves, but for doubles.
template <class T>
NumberSurvey<T> survey_numbers(const T* numbers, std::size_t count) noexcept {
  NumberSurvey<T> seen;
  const auto first = std::bit_cast<Word<T>>(numbers[0]);
  for (std::size_t k = 0; k < count; ++k) seen.add(numbers[k], first);
  return seen;
}

#if defined(__SSE2__)

inline std::uint64_t either_half(__m128d lanes) noexcept {
  const __m128d both = _mm_or_pd(lanes, _mm_unpackhi_pd(lanes, lanes));
  return std::bit_cast<std::uint64_t>(_mm_cvtsd_f64(both));
}

inline NumberSurvey<double> survey_numbers(const double* numbers, std::size_t count) noexcept {
  const __m128d first = _mm_set1_pd(numbers[0]);
  __m128d varying = _mm_setzero_pd(), nans = varying, plus_zeros = varying, minus_zeros = varying;
  std::size_t k = 0;
  for (; k + 2 <= count; k += 2) {
    const __m128d pair = _mm_loadu_pd(numbers + k);
    const __m128d zero = _mm_cmpeq_pd(pair, _mm_setzero_pd());
    varying = _mm_or_pd(varying, _mm_xor_pd(pair, first));
    nans = _mm_or_pd(nans, _mm_cmpunord_pd(pair, pair));
    plus_zeros = _mm_or_pd(plus_zeros, _mm_andnot_pd(pair, zero));
    minus_zeros = _mm_or_pd(minus_zeros, _mm_and_pd(pair, zero));
  }
  NumberSurvey<double> seen = {either_half(varying), either_half(nans), either_half(plus_zeros),
                               either_half(minus_zeros)};
  if (k < count) seen.add(numbers[k], std::bit_cast<std::uint64_t>(numbers[0]));
  return seen;
}

#endif

}  // namespace kw::sort
