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
  std::uint64_t inside = ~std::uint64_t{0};  // the piece

  // `next`: the byte behind the 64.
  std::uint64_t ends(char next) const {
    const std::uint64_t before_lf = lf >> 1 | std::uint64_t{next == '\n'} << 63;
    return (lf | (cr & ~before_lf)) & inside;
  }
  // The last bytes of a piece: fewer than 64.
  Masks cut(std::size_t length) const {
    const std::uint64_t first = (std::uint64_t{1} << length) - 1;
    return {cr, lf, odd_blanks & first, first};
  }
};

// The lowest bit; any where there is none, which spares the question.
inline unsigned lowest(std::uint64_t bits) {
  return static_cast<unsigned>(std::countr_zero(bits | std::uint64_t{1} << 63));
}

// Writes the offset of each bit. Few lines are so short that three of them end in 64 bytes: writing
// two without asking how many there are costs less than branches that cannot be foreseen.
inline std::uint32_t* write_offsets(std::uint64_t bits, std::size_t base, std::uint32_t* out) {
  std::uint32_t* const next = out + std::popcount(bits);
  do {
    for (int i = 0; i < 2; ++i, bits &= bits - 1)
      *out++ = static_cast<std::uint32_t>(base + lowest(bits));
  } while (bits != 0);
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

// Where the next offsets are written.
struct Offsets {
  std::uint32_t* ends;
  std::uint32_t* odd_blanks;

  void add(const Masks& masks, char next, std::size_t base) {
    ends = write_offsets(masks.ends(next), base, ends);
    if (masks.odd_blanks != 0) odd_blanks = write_offsets(masks.odd_blanks, base, odd_blanks);
  }
  LineEnds counts(const std::uint32_t* first_end, const std::uint32_t* first_odd_blank) const {
    return {static_cast<std::size_t>(ends - first_end),
            static_cast<std::size_t>(odd_blanks - first_odd_blank)};
  }
};

}  // namespace

__attribute__((target("sse2"))) LineEnds find_line_ends_sse2(const char* data, std::size_t length,
                                                             std::uint32_t* ends,
                                                             std::uint32_t* odd_blanks) {
  Offsets out{ends, odd_blanks};
  std::size_t at = 0;
  for (; at + 64 <= length; at += 64) out.add(masks_sse2(data + at), data[at + 64], at);
  if (at != length) out.add(masks_sse2(data + at).cut(length - at), 0, at);
  return out.counts(ends, odd_blanks);
}

__attribute__((target("avx2,bmi,popcnt"))) LineEnds find_line_ends_avx2(const char* data,
                                                                        std::size_t length,
                                                                        std::uint32_t* ends,
                                                                        std::uint32_t* odd_blanks) {
  Offsets out{ends, odd_blanks};
  std::size_t at = 0;
  for (; at + 64 <= length; at += 64) out.add(masks_avx2(data + at), data[at + 64], at);
  if (at != length) out.add(masks_avx2(data + at).cut(length - at), 0, at);
  return out.counts(ends, odd_blanks);
}

}  // namespace kw::store

#endif
