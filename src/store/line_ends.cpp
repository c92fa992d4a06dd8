#include "store/line_ends.h"

#include "store/line_blank.h"
#include "store/processor.h"

namespace kw::store {

LineEnds find_line_ends_plain(const char* data, std::size_t length, std::uint32_t* ends,
                              std::uint32_t* odd_blanks) {
  LineEnds found;
  for (std::size_t at = 0; at < length; ++at) {
    const char byte = data[at];
    if (byte == '\n' || (byte == '\r' && data[at + 1] != '\n'))
      ends[found.ends++] = static_cast<std::uint32_t>(at);
    if (is_odd_blank(byte)) odd_blanks[found.odd_blanks++] = static_cast<std::uint32_t>(at);
  }
  return found;
}

LineEndFinder line_end_finder() noexcept {
#if defined(__x86_64__) || defined(__i386__)
  static const LineEndFinder best = has_avx2()   ? find_line_ends_avx2
                                    : has_sse2() ? find_line_ends_sse2
                                                 : find_line_ends_plain;
  return best;
#else
  return find_line_ends_plain;
#endif
}

}  // namespace kw::store
