// Where the lines of a piece of text end, found with the widest vectors that the processor has.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kw::bench {

// Writes the offsets of the line ends in data[0, length) to `ends`, which has room for `length` of
// them, and returns their number. A line ends at a CR, at a lone LF, and at a CR LF, whose offset
// is that of the CR. `after_cr`: the byte in front of the data is a CR, so that an LF at its
// beginning ends no line.
using LineEndFinder = std::size_t (*)(const char* data, std::size_t length, bool after_cr,
                                      std::uint32_t* ends);

std::size_t find_line_ends_plain(const char* data, std::size_t length, bool after_cr,
                                 std::uint32_t* ends);

#if defined(__x86_64__)
std::size_t find_line_ends_sse2(const char* data, std::size_t length, bool after_cr,
                                std::uint32_t* ends);
// Only on a processor with AVX2.
std::size_t find_line_ends_avx2(const char* data, std::size_t length, bool after_cr,
                                std::uint32_t* ends);
#endif

// The fastest of them on this processor.
LineEndFinder best_line_end_finder();

}  // namespace kw::bench
