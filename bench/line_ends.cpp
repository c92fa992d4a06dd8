#include "line_ends.h"

#include <bit>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace kw::bench {
namespace {

// The rest of a text, byte by byte: data[0, from) is done and holds `count` line ends.
std::size_t finish(const char* data, std::size_t from, std::size_t length, bool after_cr,
                   std::uint32_t* ends, std::size_t count) {
  for (std::size_t i = from; i < length; ++i) {
    ends[count] = static_cast<std::uint32_t>(i);
    count += data[i] == '\r' || (data[i] == '\n' && !after_cr);
    after_cr = data[i] == '\r';
  }
  return count;
}

#if defined(__x86_64__)

struct Masks {
  std::uint64_t cr;
  std::uint64_t lf;
};

// Takes the line ends out of the masks of 64 bytes. `after_cr` says whether the byte before them is
// a CR, and then whether the last of them is.
inline std::size_t take(Masks masks, bool& after_cr, std::size_t base, std::uint32_t* ends,
                        std::size_t count) {
  std::uint64_t found = masks.cr | (masks.lf & ~(masks.cr << 1 | std::uint64_t{after_cr}));
  after_cr = (masks.cr >> 63) != 0;
  for (; found != 0; found &= found - 1) {
    ends[count++] =
        static_cast<std::uint32_t>(base + static_cast<unsigned>(std::countr_zero(found)));
  }
  return count;
}

inline std::uint64_t equal_sse2(const char* data, __m128i wanted) {
  std::uint64_t mask = 0;
  for (unsigned i = 0; i < 4; ++i) {
    const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + 16 * i));
    const auto bits = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(piece, wanted)));
    mask |= std::uint64_t{bits} << (16 * i);
  }
  return mask;
}

__attribute__((target("avx2"))) inline std::uint64_t equal_avx2(__m256i low, __m256i high,
                                                                __m256i wanted) {
  const auto low_bits =
      static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(low, wanted)));
  const auto high_bits =
      static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(high, wanted)));
  return low_bits | std::uint64_t{high_bits} << 32;
}

#endif

}  // namespace

std::size_t find_line_ends_plain(const char* data, std::size_t length, bool after_cr,
                                 std::uint32_t* ends) {
  return finish(data, 0, length, after_cr, ends, 0);
}

#if defined(__x86_64__)

std::size_t find_line_ends_sse2(const char* data, std::size_t length, bool after_cr,
                                std::uint32_t* ends) {
  const __m128i cr = _mm_set1_epi8('\r');
  const __m128i lf = _mm_set1_epi8('\n');
  std::size_t count = 0;
  std::size_t i = 0;
  for (; i + 64 <= length; i += 64) {
    const Masks masks{equal_sse2(data + i, cr), equal_sse2(data + i, lf)};
    count = take(masks, after_cr, i, ends, count);
  }
  return finish(data, i, length, after_cr, ends, count);
}

__attribute__((target("avx2,bmi"))) std::size_t find_line_ends_avx2(const char* data,
                                                                    std::size_t length,
                                                                    bool after_cr,
                                                                    std::uint32_t* ends) {
  const __m256i cr = _mm256_set1_epi8('\r');
  const __m256i lf = _mm256_set1_epi8('\n');
  std::size_t count = 0;
  std::size_t i = 0;
  for (; i + 64 <= length; i += 64) {
    const __m256i low = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + i));
    const __m256i high = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + i + 32));
    const Masks masks{equal_avx2(low, high, cr), equal_avx2(low, high, lf)};
    count = take(masks, after_cr, i, ends, count);
  }
  return finish(data, i, length, after_cr, ends, count);
}

LineEndFinder best_line_end_finder() {
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi");
  return avx2 ? find_line_ends_avx2 : find_line_ends_sse2;
}

#else

LineEndFinder best_line_end_finder() { return find_line_ends_plain; }

#endif

}  // namespace kw::bench
