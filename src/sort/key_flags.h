// Which of a few numbers come before or after a pivot, as bits of a word.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kw::sort {

// What is asked of each number.
enum class Flag { below_pivot, above_pivot, not_below_pivot, not_above_pivot };

// not_... flags are looked up as their opposites.
constexpr bool is_negated(Flag flag) {
  return flag == Flag::not_below_pivot || flag == Flag::not_above_pivot;
}
constexpr Flag opposite_of(Flag flag) {
  return flag == Flag::not_below_pivot ? Flag::below_pivot : Flag::above_pivot;
}

template <Flag kFlag, class T>
bool flag_of(T value, T pivot) noexcept {
  return kFlag == Flag::below_pivot ? value < pivot : pivot < value;
}

inline constexpr std::ptrdiff_t kFlagGroup = 16;

#if defined(__SSE2__)

// All bits of a lane are set when the numbers at `first` (one vector of them) have the flag.
template <Flag kFlag>
__m128i flag_lanes(const std::int16_t* first, std::int16_t pivot) noexcept {
  const __m128i values = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first));
  const __m128i pivots = _mm_set1_epi16(pivot);
  return kFlag == Flag::below_pivot ? _mm_cmplt_epi16(values, pivots)
                                    : _mm_cmpgt_epi16(values, pivots);
}

template <Flag kFlag>
__m128i flag_lanes(const std::int32_t* first, std::int32_t pivot) noexcept {
  const __m128i values = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first));
  const __m128i pivots = _mm_set1_epi32(pivot);
  return kFlag == Flag::below_pivot ? _mm_cmplt_epi32(values, pivots)
                                    : _mm_cmpgt_epi32(values, pivots);
}

template <Flag kFlag>
__m128i flag_lanes(const float* first, float pivot) noexcept {
  const __m128 values = _mm_loadu_ps(first);
  const __m128 pivots = _mm_set1_ps(pivot);
  return _mm_castps_si128(kFlag == Flag::below_pivot ? _mm_cmplt_ps(values, pivots)
                                                     : _mm_cmplt_ps(pivots, values));
}

template <Flag kFlag>
__m128d flag_lanes(const double* first, double pivot) noexcept {
  const __m128d values = _mm_loadu_pd(first);
  const __m128d pivots = _mm_set1_pd(pivot);
  return kFlag == Flag::below_pivot ? _mm_cmplt_pd(values, pivots) : _mm_cmplt_pd(pivots, values);
}

// Eight flags in 16-bit lanes.
template <Flag kFlag>
__m128i eight_flags(const std::int16_t* first, std::int16_t pivot) noexcept {
  return flag_lanes<kFlag>(first, pivot);
}

template <Flag kFlag, class T>
__m128i eight_flags(const T* first, T pivot) noexcept {
  return _mm_packs_epi32(flag_lanes<kFlag>(first, pivot), flag_lanes<kFlag>(first + 4, pivot));
}

template <Flag kFlag>
__m128i four_flags(const double* first, double pivot) noexcept {
  const __m128 low = _mm_castpd_ps(flag_lanes<kFlag>(first, pivot));
  const __m128 high = _mm_castpd_ps(flag_lanes<kFlag>(first + 2, pivot));
  return _mm_castps_si128(_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
}

template <Flag kFlag>
__m128i eight_flags(const double* first, double pivot) noexcept {
  return _mm_packs_epi32(four_flags<kFlag>(first, pivot), four_flags<kFlag>(first + 4, pivot));
}

// Bit k tells of first[k], for kFlagGroup numbers.
template <Flag kFlag, class T>
std::uint64_t group_flags(const T* first, T pivot) noexcept {
  const __m128i low = eight_flags<kFlag>(first, pivot);
  const __m128i high = eight_flags<kFlag>(first + 8, pivot);
  return static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
}

#else

template <Flag kFlag, class T>
std::uint64_t group_flags(const T* first, T pivot) noexcept {
  std::uint64_t flags = 0;
  for (std::ptrdiff_t k = 0; k < kFlagGroup; ++k)
    flags |= std::uint64_t{flag_of<kFlag>(first[k], pivot)} << k;
  return flags;
}

#endif

// Bit k tells of first[k]; `count` is 1 to 64. Higher bits are not set.
template <Flag kFlag, class T>
std::uint64_t key_flags(const T* first, std::ptrdiff_t count, T pivot) noexcept {
  if constexpr (is_negated(kFlag))
    return ~key_flags<opposite_of(kFlag)>(first, count, pivot) &
           (~std::uint64_t{0} >> (64 - count));
  std::uint64_t flags = 0;
  std::ptrdiff_t k = 0;
  for (; k + kFlagGroup <= count; k += kFlagGroup)
    flags |= group_flags<kFlag>(first + k, pivot) << k;
  if (k == count) return flags;
  if (k > 0) {
    const std::ptrdiff_t last = count - kFlagGroup;
    return flags | group_flags<kFlag>(first + last, pivot) << last;
  }
  for (; k < count; ++k) flags |= std::uint64_t{flag_of<kFlag>(first[k], pivot)} << k;
  return flags;
}

}  // namespace kw::sort
