#include "store/line_ends.h"

#if defined(__x86_64__) || defined(__i386__)

#include <immintrin.h>

#include <bit>

namespace kw::store {

namespace {

// What 64 bytes hold, one bit a byte.
struct Masks {
  std::uint64_t cr;
  std::uint64_t lf;
  std::uint64_t odd_blanks;

  // `next`: the byte behind the 64.
  std::uint64_t ends(char next) const {
    const std::uint64_t before_lf = lf >> 1 | std::uint64_t{next == '\n'} << 63;
    return lf | (cr & ~before_lf);
  }
};

// Lines of more than a dozen bytes have at most four ends in 64 bytes: writing four without asking
// how many there are costs less than a branch that cannot be foreseen.
inline std::uint32_t* write_ends(std::uint64_t ends, std::size_t base, std::uint32_t* out) {
  std::uint32_t* const next = out + std::popcount(ends);
  do {
    for (int i = 0; i < 4; ++i, ends &= ends - 1)
      *out++ = static_cast<std::uint32_t>(base + static_cast<unsigned>(std::countr_zero(ends)));
  } while (ends != 0);
  return next;
}

__attribute__((target("sse2"))) inline std::uint64_t mask_16(__m128i equal) {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(equal));
}

__attribute__((target("sse2"))) Masks masks_sse2(const char* data) {
  Masks masks{};
  for (unsigned at = 0; at < 64; at += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at));
    const __m128i tab = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\t'));
    const __m128i no_break = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\xA0'));
    masks.cr |= mask_16(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'))) << at;
    masks.lf |= mask_16(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))) << at;
    masks.odd_blanks |= mask_16(_mm_or_si128(tab, no_break)) << at;
  }
  return masks;
}

__attribute__((target("avx2"))) inline std::uint64_t mask_32(__m256i equal) {
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(equal));
}

__attribute__((target("avx2"))) inline Masks masks_avx2(const char* data) {
  Masks masks{};
  for (unsigned at = 0; at < 64; at += 32) {
    const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at));
    const __m256i tab = _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\t'));
    const __m256i no_break = _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\xA0'));
    masks.cr |= mask_32(_mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\r'))) << at;
    masks.lf |= mask_32(_mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\n'))) << at;
    masks.odd_blanks |= mask_32(_mm256_or_si256(tab, no_break)) << at;
  }
  return masks;
}

// The last bytes of a piece: those of `masks` that lie inside it.
inline Masks cut(const Masks& masks, std::size_t length) {
  const std::uint64_t inside = (std::uint64_t{1} << length) - 1;
  return {masks.cr & inside, masks.lf, masks.odd_blanks & inside};
}

inline std::uint64_t ends_in_cut(const Masks& masks, std::size_t length) {
  return masks.ends(0) & ((std::uint64_t{1} << length) - 1);
}

}  // namespace

__attribute__((target("sse2"))) LineEnds find_line_ends_sse2(const char* data, std::size_t length,
                                                             std::uint32_t* ends) {
  std::uint32_t* out = ends;
  std::uint64_t odd_blanks = 0;
  std::size_t at = 0;
  for (; at + 64 <= length; at += 64) {
    const Masks masks = masks_sse2(data + at);
    out = write_ends(masks.ends(data[at + 64]), at, out);
    odd_blanks |= masks.odd_blanks;
  }
  if (at != length) {
    const Masks masks = cut(masks_sse2(data + at), length - at);
    out = write_ends(ends_in_cut(masks, length - at), at, out);
    odd_blanks |= masks.odd_blanks;
  }
  return {static_cast<std::size_t>(out - ends), odd_blanks != 0};
}

__attribute__((target("avx2,bmi,popcnt"))) LineEnds find_line_ends_avx2(const char* data,
                                                                        std::size_t length,
                                                                        std::uint32_t* ends) {
  std::uint32_t* out = ends;
  std::uint64_t odd_blanks = 0;
  std::size_t at = 0;
  for (; at + 64 <= length; at += 64) {
    const Masks masks = masks_avx2(data + at);
    out = write_ends(masks.ends(data[at + 64]), at, out);
    odd_blanks |= masks.odd_blanks;
  }
  if (at != length) {
    const Masks masks = cut(masks_avx2(data + at), length - at);
    out = write_ends(ends_in_cut(masks, length - at), at, out);
    odd_blanks |= masks.odd_blanks;
  }
  return {static_cast<std::size_t>(out - ends), odd_blanks != 0};
}

}  // namespace kw::store

#endif
