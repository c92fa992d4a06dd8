// One line of an INI file: a header, an entry, or neither.
//
// The templates serve both kinds of file: bytes of the code page (char) and UTF-16 (char16_t).
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "base/case_map.h"
#include "base/code_page.h"

namespace kw::ini {

template <class C>
using View = std::basic_string_view<C>;

template <class C>
constexpr bool is_line_end(C unit) noexcept {
  return unit == C{'\r'} || unit == C{'\n'};
}

// Byte 26 is an old end-of-file mark, and as blank as the white space.
template <class C>
constexpr bool is_blank(C unit) noexcept {
  return unit == C{' '} || (unit >= C{9} && unit <= C{13}) || unit == C{26};
}

template <class C>
constexpr View<C> trim_front(View<C> text) noexcept {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  return text;
}

template <class C>
constexpr View<C> trim_back(View<C> text) noexcept {
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

template <class C>
constexpr View<C> trim(View<C> text) noexcept {
  return trim_back(trim_front(text));
}

// NUL ends every text, also one that stands in a file.
template <class C>
constexpr View<C> until_nul(View<C> text) noexcept {
  return text.substr(0, text.find(C{0}));
}

inline char16_t fold(char byte) noexcept { return fold_byte(static_cast<unsigned char>(byte)); }
inline char16_t fold(char16_t unit) noexcept { return to_upper(unit); }

// Names of sections and keys are equal without regard to case.
template <class C>
bool same_name(View<C> left, View<C> right) noexcept {
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [](C a, C b) { return a == b || fold(a) == fold(b); });
}

// Where a line lies in a text, in units from 0: [begin, end) without its line end, and where the
// next line begins. CR, LF and CR LF end a line.
struct LinePlace {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t next = 0;
};

template <class C>
LinePlace line_at(View<C> text, std::size_t begin) noexcept {
  const auto past =
      std::find_if(text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(), is_line_end<C>);
  const auto end = static_cast<std::size_t>(past - text.begin());
  if (end == text.size()) return {begin, end, end};
  const bool pair = text[end] == C{'\r'} && end + 1 < text.size() && text[end + 1] == C{'\n'};
  return {begin, end, end + (pair ? 2 : 1)};
}

// The section that a line opens: what stands between "[" at its beginning and its last "]";
// nothing when the line is no header. "[a]b]" opens "a]b", "[s];x" opens "s", "[s" opens nothing.
template <class C>
std::optional<View<C>> header_name(View<C> line) noexcept {
  line = trim_front(line);
  if (line.empty() || line.front() != C{'['}) return std::nullopt;
  const std::size_t close = line.rfind(C{']'});
  if (close == View<C>::npos) return std::nullopt;
  return until_nul(trim(line.substr(1, close - 1)));
}

template <class C>
struct Entry {
  View<C> name;
  View<C> value;
  bool has_value = false;  // without a "=" there is none, but later entries of the name are hidden
};

// The entry on a line that is no header; nothing on a blank line and on a comment (";" first).
template <class C>
std::optional<Entry<C>> parse_entry(View<C> line) noexcept {
  line = trim(line);
  if (line.empty() || line.front() == C{';'}) return std::nullopt;
  const std::size_t equals = line.find(C{'='});
  Entry<C> entry{until_nul(trim_back(line.substr(0, equals))), {}, equals != View<C>::npos};
  if (entry.has_value) entry.value = until_nul(trim_front(line.substr(equals + 1)));
  return entry;
}

}  // namespace kw::ini
