// Text operations with positions from 1, as plainly as they can be written.
#pragma once

#include <cstddef>
#include <string>

namespace kw::reference {

template <class Char>
using Text = std::basic_string<Char>;

// The text of an ASCII literal.
template <class Char>
Text<Char> text_of(const char* ascii) {
  Text<Char> text;
  for (; *ascii != 0; ++ascii) text += static_cast<Char>(*ascii);
  return text;
}

template <class Char>
Text<Char> text_of(Char unit) {
  return Text<Char>(1, unit);
}

// At most `length` characters from position `start` on.
template <class Char>
Text<Char> mid(const Text<Char>& text, std::size_t start,
               std::size_t length = static_cast<std::size_t>(-1)) {
  Text<Char> part;
  for (std::size_t at = start; at <= text.size() && part.size() < length; ++at) {
    part += text[at - 1];
  }
  return part;
}

template <class Char>
Text<Char> left(const Text<Char>& text, std::size_t length) {
  return mid(text, 1, length);
}

// The position of the first `sought` at or after `start`; 0 when there is none. An empty one is
// found at `start` when that lies within the text.
template <class Char>
std::size_t in_str(std::size_t start, const Text<Char>& text, const Text<Char>& sought) {
  for (std::size_t at = start; at <= text.size(); ++at) {
    if (mid(text, at, sought.size()) == sought) return at;
  }
  return 0;
}

template <class Char>
std::size_t in_str(const Text<Char>& text, const Text<Char>& sought) {
  return in_str(1, text, sought);
}

template <class Char>
Text<Char> ltrim(Text<Char> text) {
  while (left(text, 1) == text_of<Char>(" ")) text = mid(text, 2);
  return text;
}

template <class Char>
Text<Char> rtrim(Text<Char> text) {
  while (!text.empty() && text.back() == Char(' ')) text.pop_back();
  return text;
}

template <class Char>
Text<Char> trim(const Text<Char>& text) {
  return ltrim(rtrim(text));
}

}  // namespace kw::reference
