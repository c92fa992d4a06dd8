// Walks the words of a text of several lines.
#pragma once

#include <string_view>

#include "kwutils/string.h"
#include "parse/item.h"
#include "parse/line.h"

namespace kw::parse {

// Gives word after word, line after line: line ends separate words, so a structure may span lines.
class WordWalk {
 public:
  explicit WordWalk(std::u16string_view text) noexcept : lines_(text) {}

  // False at the end of the text; `word` is then unchanged.
  bool next(Item<char16_t>& word) noexcept {
    while (line_.empty()) {
      if (lines_.empty()) return false;
      line_ = trim(take_line(lines_));
    }
    word = take_item(line_);
    return true;
  }

  // The lines after the one being read.
  std::u16string_view lines() const noexcept { return lines_; }

  // What has not been read yet: the rest of the line, with CR LF, before the other lines.
  String rest() const {
    return line_.empty() ? String(lines_) : String::concat(line_, u"\r\n", lines_);
  }

 private:
  std::u16string_view line_;
  std::u16string_view lines_;
};

}  // namespace kw::parse
