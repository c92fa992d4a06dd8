// Where the lines of a piece of text end, found with the widest vectors that the processor has.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kw::store {

struct LineEnds {
  std::size_t ends = 0;
  std::size_t odd_blanks = 0;

  friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

// How many bytes behind the piece a finder may read, beside the one that follows it.
inline constexpr std::size_t kFinderPadding = 64;
// How many entries behind the last one a finder may overwrite.
inline constexpr std::size_t kFinderSlack = 2;

// Writes the offsets at which lines of data[0, length) end to `ends`: that of each LF, and that of
// each CR that no LF follows; a CR LF thus ends one line, at its LF. Writes the offsets of the odd
// blanks, those characters that a record shows as blanks though they are others, tabs and no-break
// spaces (byte A0), to `odd_blanks`. Gives the number of each.
//
// data[length] must be readable, it decides about a CR at the end of the piece; so must
// kFinderPadding bytes behind it. Both arrays have room for length + kFinderSlack entries.
using LineEndFinder = LineEnds (*)(const char* data, std::size_t length, std::uint32_t* ends,
                                   std::uint32_t* odd_blanks);

LineEnds find_line_ends_plain(const char* data, std::size_t length, std::uint32_t* ends,
                              std::uint32_t* odd_blanks);

#if defined(__x86_64__) || defined(__i386__)
// Each only on a processor that has those vectors.
LineEnds find_line_ends_sse2(const char* data, std::size_t length, std::uint32_t* ends,
                             std::uint32_t* odd_blanks);
LineEnds find_line_ends_avx2(const char* data, std::size_t length, std::uint32_t* ends,
                             std::uint32_t* odd_blanks);
#endif

// The fastest of them on this processor.
LineEndFinder line_end_finder() noexcept;

}  // namespace kw::store
