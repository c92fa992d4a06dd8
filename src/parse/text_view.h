// The small operations on text views that every part of the scanner uses.
//
// All of it works on views of 8-bit and of 16-bit text alike, and allocates nothing. "Blank" is
// character 32 only: tabs, line ends and no-break spaces are ordinary characters here.
#pragma once

#include <cstddef>
#include <string_view>
#include <type_traits>

#include "base/find_text.h"
#include "base/find_unit.h"

namespace kw::parse {

template <class Char>
using View = std::basic_string_view<Char>;

// A view that is no help in finding out the character type, so that anything that turns into a view
// of the other arguments' type can be passed.
template <class Char>
using SameView = std::type_identity_t<View<Char>>;

template <class Char>
inline constexpr Char kBlank = Char(' ');
template <class Char>
inline constexpr Char kApostrophe = Char('\'');
template <class Char>
inline constexpr Char kDoubleQuote = Char('"');

template <class Char>
constexpr View<Char> trim_left(View<Char> text) noexcept {
  std::size_t first = 0;
  while (first < text.size() && text[first] == kBlank<Char>) ++first;
  text.remove_prefix(first);
  return text;
}

template <class Char>
constexpr View<Char> trim_right(View<Char> text) noexcept {
  std::size_t size = text.size();
  while (size > 0 && text[size - 1] == kBlank<Char>) --size;
  return text.substr(0, size);
}

template <class Char>
constexpr View<Char> trim(View<Char> text) noexcept {
  return trim_right(trim_left(text));
}

// The text from position `first` (from 0) on; empty when that lies past the end.
template <class Char>
constexpr View<Char> tail_from(View<Char> text, std::size_t first) noexcept {
  return first < text.size() ? text.substr(first) : View<Char>();
}

template <class Char>
constexpr bool begins_with(View<Char> text, Char unit) noexcept {
  return !text.empty() && text.front() == unit;
}

// Whether find_text finds `sought`: an empty one stands in every text but the empty one.
template <class Char>
bool contains(View<Char> text, SameView<Char> sought) noexcept {
  return find_text(text, sought) != kNotFound;
}

}  // namespace kw::parse
