// What a floor looks at in a line: its ends without the blanks around it, its first and last word.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kw::bench {

// A trimmed line. Each of the two words is the whole line when it holds no blank. When the line is
// empty (begin == end), so are they.
struct Line {
  const char* begin;
  const char* end;
  std::size_t first_length;
  std::size_t last_length;
};

// Tabs and no-break spaces count as blanks.
inline bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\xA0'; }

// The line between two line ends, byte by byte. For lines that the vector code does not take.
inline Line look_plain(const char* begin, const char* end) {
  while (begin != end && is_blank(*begin)) ++begin;
  while (begin != end && is_blank(end[-1])) --end;
  const char* first = begin;
  while (first != end && !is_blank(*first)) ++first;
  const char* last = end;
  while (last != begin && !is_blank(last[-1])) --last;
  return {begin, end, static_cast<std::size_t>(first - begin),
          static_cast<std::size_t>(end - last)};
}

#if defined(__SSE2__)

// Bit i is set when byte i of sixteen is a blank.
inline std::uint32_t blanks_of_16(const char* at) {
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
  const __m128i blank = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '));
  const __m128i tab = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\t'));
  const __m128i no_break = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\xA0'));
  return static_cast<std::uint32_t>(
      _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(blank, tab), no_break)));
}

// The same as look_plain. Sixteen bytes at each end hold the blanks and the word there in nearly
// every line.
inline Line look(const char* begin, const char* end) {
  if (end - begin < 16) return look_plain(begin, end);
  const std::uint32_t head = blanks_of_16(begin);
  const std::uint32_t tail = blanks_of_16(end - 16) << 16;  // the last byte is the highest bit
  const auto skip = static_cast<unsigned>(std::countr_one(head));
  const auto drop = static_cast<unsigned>(std::countl_one(tail));
  if (skip == 16 || drop == 16) return look_plain(begin, end);
  const std::uint32_t after_first = head >> skip;
  const std::uint32_t before_last = tail << drop;
  if (after_first == 0 || before_last == 0) return look_plain(begin, end);
  return {begin + skip, end - drop, static_cast<std::size_t>(std::countr_zero(after_first)),
          static_cast<std::size_t>(std::countl_zero(before_last))};
}

#else

inline Line look(const char* begin, const char* end) { return look_plain(begin, end); }

#endif

}  // namespace kw::bench
