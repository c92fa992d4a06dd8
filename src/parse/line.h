// Lines of a text in memory.
#pragma once

#include <cstddef>

#include "parse/text_view.h"

namespace kw::parse {

// Takes the first line off `text` and gives it without its end. A line ends at the first CR; the
// blanks that follow, then one LF, are dropped with it. So the leading blanks of the next line stay
// after CR LF, and go after a lone CR. A lone LF ends no line.
template <class Char>
View<Char> take_line(View<Char>& text) noexcept {
  const std::size_t end = find_unit(text, Char('\r'));
  const View<Char> line = text.substr(0, end);
  text = end == kNotFound ? View<Char>() : trim_left(text.substr(end + 1));
  if (begins_with(text, Char('\n'))) text.remove_prefix(1);
  return line;
}

}  // namespace kw::parse
