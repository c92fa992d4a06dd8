// What a floor saw of the lines of a file.
#pragma once

#include <cstdint>

#include "line_words.h"

namespace kw::bench {

// The words' lengths, first and last bytes go into the sum, so that no look at a line can be
// optimised away.
struct Seen {
  std::uint64_t lines = 0;
  std::uint64_t checksum = 0;

  void note(const Line& line) {
    const auto first = static_cast<unsigned char>(line.begin[0]);
    const auto last = static_cast<unsigned char>(line.end[-1]);
    ++lines;
    checksum += line.first_length * 3 + line.last_length * 5 + first * 7u + last * 11u;
  }
};

}  // namespace kw::bench
