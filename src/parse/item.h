// Items: what a list is cut into, one at a time, from its front.
//
// An item runs to the next separator and is trimmed of blanks; or it begins with an apostrophe or a
// double quote and runs to the next one of the same kind (a quoted item), blanks and separators
// included. Leading blanks, then one comma, are skipped before it. So "a 'b c' d" gives a, b c and
// d; ", a" gives an empty item first, because blanks after the comma stay.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "parse/text_view.h"

namespace kw::parse {

template <class Char>
struct Item {
  View<Char> text;  // trimmed, without quotes; empty after an opening quote that is never closed
  Char quote = {};  // the quote that stood around it; 0 around none, or when it was not closed
};

// The separator that a caller's text stands for: without its leading blanks, unless it consists of
// blanks only; an empty one stands for one blank.
template <class Char>
View<Char> separator_of(View<Char> given) noexcept {
  static constexpr Char kOneBlank[] = {kBlank<Char>};
  if (given.empty()) return {kOneBlank, 1};
  const View<Char> bare = trim_left(given);
  return bare.empty() ? given : bare;
}

// The position of the first `separator` at or after `start` in `text` with one separator appended,
// which is at most text.size(); kNotFound when `start` lies past the end of the text. The separator
// found may begin in the text and end in the appended one. `separator` is not empty.
template <class Char>
std::size_t find_in_closed_text(View<Char> text, View<Char> separator, std::size_t start) {
  if (start > text.size()) return kNotFound;
  const std::size_t found = find_text(text, separator, start);
  if (found != kNotFound || separator.size() == 1) return found == kNotFound ? text.size() : found;
  const std::size_t overlap = std::min(separator.size() - 1, text.size() - start);
  const std::size_t seam = text.size() - overlap;
  std::basic_string<Char> joint(text.substr(seam));
  joint += separator;
  return seam + find_text(View<Char>(joint), separator);
}

namespace detail {

// Takes off what may stand before an item: blanks, one comma, an opening quote. Gives the quote, or
// 0.
template <class Char>
Char open_item(View<Char>& list) noexcept {
  list = trim_left(list);
  if (begins_with(list, Char(','))) list.remove_prefix(1);
  if (!begins_with(list, kApostrophe<Char>) && !begins_with(list, kDoubleQuote<Char>)) return {};
  const Char quote = list.front();
  list.remove_prefix(1);
  return quote;
}

// Cuts the item that ends at position `end` off the list, and `separator_size` characters from
// there.
template <class Char>
Item<Char> cut_item(View<Char>& list, std::size_t end, std::size_t separator_size,
                    Char quote) noexcept {
  const View<Char> text = trim(list.substr(0, end));
  list = trim_left(tail_from(list, end + separator_size));
  return {text, quote};
}

}  // namespace detail

// Takes the next item off the front of `list`; `separator` is one of separator_of. The characters
// behind a quoted item are skipped as many as the separator has, less the quote, unseen. After an
// opening quote that is never closed the item is empty, and the list keeps all that follows the
// quote. A closing quote may come from the separator, which counts as appended to the list.
template <class Char>
Item<Char> take_item(View<Char>& list, SameView<Char> separator) {
  const Char quote = detail::open_item(list);
  if (quote == Char()) {
    const std::size_t end = find_in_closed_text(list, separator, 0);
    return detail::cut_item(list, end, separator.size(), quote);
  }
  std::size_t end = find_unit(list, quote);
  if (end == kNotFound) {
    if (find_unit(separator, quote) == kNotFound) return {};
    end = list.size();
  }
  return detail::cut_item(list, end, separator.size(), quote);
}

// The same with one blank as the separator: takes the next word.
template <class Char>
Item<Char> take_item(View<Char>& list) noexcept {
  const Char quote = detail::open_item(list);
  const std::size_t end = find_unit(list, quote == Char() ? kBlank<Char> : quote);
  if (end != kNotFound) {
    const View<Char> text = list.substr(0, end);
    list = trim_left(list.substr(end + 1));
    return {quote == Char() ? text : trim(text), quote};
  }
  if (quote != Char()) return {};
  const View<Char> text = list;
  list = {};
  return {text, quote};
}

}  // namespace kw::parse
