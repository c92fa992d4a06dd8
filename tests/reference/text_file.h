// A text file in memory, read a line at a time, character by character.
#pragma once

#include <cstddef>
#include <string>

namespace kw::reference {

struct TextFile {
  std::string content;
  std::size_t position = 0;  // of the next character, from 0

  bool at_end() const { return position >= content.size(); }

  // A line ends at CR LF, at a lone CR, at a lone LF and at the end of the file.
  std::string read_line() {
    std::string line;
    while (!at_end()) {
      const char character = content[position++];
      if (character == '\n') break;
      if (character == '\r') {
        if (!at_end() && content[position] == '\n') ++position;
        break;
      }
      line += character;
    }
    return line;
  }
};

}  // namespace kw::reference
