// Keywords: a word on a line, outside quoted text, whose value follows.
#pragma once

#include <cstddef>
#include <optional>

#include "parse/item.h"
#include "parse/text_view.h"

namespace kw::parse {

// Whether the item that begins at `position` (from 0) of `text` is `token` to the letter.
template <class Char>
bool IsTokenAt(View<Char> text, SameView<Char> token, std::size_t position) noexcept {
  if (position > text.size() || token.size() > text.size() - position) return false;
  const View<Char> there = text.substr(position, token.size());
  View<Char> list = text.substr(position);
  return take_item(list).text == there;
}

namespace detail {

// The first place where `token` stands as a word, quoted or not, or kNotFound.
template <class Char>
std::size_t find_word(View<Char> line, View<Char> token) noexcept {
  // No word holds a blank: only a quoted item does, and that one begins with its quote.
  if (find_unit(token, kBlank<Char>) != kNotFound) return kNotFound;
  std::size_t start = 0;
  for (;;) {
    const std::size_t at = find_text(line, token, start);
    if (at == kNotFound) return kNotFound;
    const bool begins_word = at == 0 || line[at - 1] == kBlank<Char>;
    if (begins_word && IsTokenAt(line, token, at)) return at;
    // The next word begins after a blank: places before it need no look, so a line is read once
    // however often the token stands inside its words.
    const std::size_t blank = find_unit(line, kBlank<Char>, at);
    if (blank == kNotFound) return kNotFound;
    start = blank + 1;
  }
}

template <class Char>
bool inside_quotes(View<Char> line, std::size_t at) noexcept {
  bool inside = false;
  for (std::size_t quote = find_unit(line, kApostrophe<Char>); quote < at;
       quote = find_unit(line, kApostrophe<Char>, quote + 1)) {
    inside = !inside;
  }
  return inside;
}

}  // namespace detail

// The text after the first `token` of the line that stands as a word outside quoted text, without
// leading blanks; nothing when there is none. A place is inside quoted text when an odd number of
// apostrophes precedes it on the line; the search then goes on after the next apostrophe, or, where
// none follows, takes the place after all. `token` is compared as it is: "id" does not find "ID".
template <class Char>
std::optional<View<Char>> keyword_value(View<Char> line, SameView<Char> token) noexcept {
  for (;;) {
    line = trim(line);
    const std::size_t at = detail::find_word(line, token);
    if (at == kNotFound) return std::nullopt;
    if (!detail::inside_quotes(line, at)) return trim_left(line.substr(at + token.size()));
    const std::size_t closing = find_unit(line, kApostrophe<Char>, at);
    line = line.substr(closing == kNotFound ? at : closing + 1);
  }
}

}  // namespace kw::parse
