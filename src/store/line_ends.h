// Where the lines of a piece of text end, found with the widest vectors that the processor has.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kw::store {

struct LineEnds {
  std::size_t count = 0;
  // Whether the piece holds a tab or a no-break space (byte A0), the two characters that a record
  // shows as blanks.
  bool odd_blanks = false;

  friend bool operator==(const LineEnds&, const LineEnds&) = default;
};

// How many bytes behind the piece a finder may read, beside the one that follows it.
inline constexpr std::size_t kFinderPadding = 64;
// How many entries behind the last one a finder may overwrite.
inline constexpr std::size_t kFinderSlack = 4;

// Writes the offsets at which lines of data[0, length) end to `ends`: that of each LF, and that of
// each CR that no LF follows. A CR LF thus ends one line, at its LF. data[length] must be readable,
// it decides about a CR at the end of the piece; so must kFinderPadding bytes behind it. `ends` has
// room for length + kFinderSlack entries.
using LineEndFinder = LineEnds (*)(const char* data, std::size_t length, std::uint32_t* ends);

LineEnds find_line_ends_plain(const char* data, std::size_t length, std::uint32_t* ends);

#if defined(__x86_64__) || defined(__i386__)
// Each only on a processor that has those vectors.
LineEnds find_line_ends_sse2(const char* data, std::size_t length, std::uint32_t* ends);
LineEnds find_line_ends_avx2(const char* data, std::size_t length, std::uint32_t* ends);
#endif

// The fastest of them on this processor.
LineEndFinder line_end_finder() noexcept;

}  // namespace kw::store
