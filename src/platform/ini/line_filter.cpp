#include "platform/ini/line_filter.h"

#include <bit>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kw::ini {
namespace {

// A name without characters stands on a line that begins with its "=".
constexpr std::string_view kNoName = "=";

#if defined(__SSE2__)

constexpr std::size_t kBlock = 16;

__m128i load(const char* bytes) noexcept {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

__m128i equal(__m128i bytes, char wanted) noexcept {
  return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted));
}

__m128i either(__m128i bytes, char one, char other) noexcept {
  return _mm_or_si128(equal(bytes, one), equal(bytes, other));
}

// Blanks and control characters: rare at the beginning of a line, and told apart later.
__m128i low(__m128i bytes) noexcept {
  const __m128i blank = _mm_set1_epi8(' ');
  return _mm_cmpeq_epi8(_mm_max_epu8(bytes, blank), blank);
}

#endif

}  // namespace

LineFilter<char>::Letter::Letter(char byte) noexcept : upper(byte), lower(byte) {
  const auto code = static_cast<unsigned char>(byte);
  lower = static_cast<char>(lower_byte(code));
  upper = static_cast<char>(encode(fold_byte(code)).value_or(code));
}

LineFilter<char>::LineFilter(std::string_view name) noexcept
    : name_(name.empty() ? kNoName : name), first_(name_.front()), last_(name_.back()) {}

bool LineFilter<char>::passes(std::string_view text, std::size_t begin) const noexcept {
  if (begin >= text.size() || is_line_end(text[begin])) return false;
  const char byte = text[begin];
  if (byte == '[' || static_cast<unsigned char>(byte) <= ' ') return true;
  return first_.is(byte) && same_name(text.substr(begin, name_.size()), name_);
}

// The answer of next(), as far as whole blocks reach; text.size() when they end before it. `from`
// is moved past the blocks.
std::size_t LineFilter<char>::next_in_blocks([[maybe_unused]] std::string_view text,
                                             [[maybe_unused]] std::size_t& from) const noexcept {
#if defined(__SSE2__)
  for (; text.size() - from >= kBlock + name_.size(); from += kBlock) {
    const char* const at = text.data() + from;
    const __m128i end = either(load(at), '\r', '\n');
    if (_mm_movemask_epi8(end) == 0) continue;
    const __m128i begin = load(at + 1);
    const __m128i name = _mm_and_si128(either(begin, first_.upper, first_.lower),
                                       either(load(at + name_.size()), last_.upper, last_.lower));
    const __m128i other =
        _mm_andnot_si128(either(begin, '\r', '\n'), _mm_or_si128(low(begin), equal(begin, '[')));
    auto found =
        static_cast<unsigned>(_mm_movemask_epi8(_mm_and_si128(end, _mm_or_si128(name, other))));
    for (; found != 0; found &= found - 1) {
      const std::size_t line = from + 1 + static_cast<std::size_t>(std::countr_zero(found));
      if (passes(text, line)) return line;
    }
  }
#endif
  return text.size();
}

std::size_t LineFilter<char>::next(std::string_view text, std::size_t from) const noexcept {
  if (passes(text, from)) return from;
  const std::size_t begin = next_in_blocks(text, from);
  if (begin != text.size()) return begin;
  for (; from < text.size(); ++from) {
    if (is_line_end(text[from]) && passes(text, from + 1)) return from + 1;
  }
  return text.size();
}

}  // namespace kw::ini
