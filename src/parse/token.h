// Tokens: what a line is cut into. They are read like items separated by one blank, but the text
// after a quoted token is not skipped, and an unclosed quote ends the reading.
#pragma once

#include <cstddef>
#include <optional>

#include "parse/text_view.h"

namespace kw::parse {

template <class Char>
class TokenReader {
 public:
  explicit TokenReader(View<Char> text) noexcept : rest_(text) {}

  // The next token, trimmed and without its quotes, or nothing when its quote is never closed.
  // After the last token come empty ones without end.
  std::optional<View<Char>> next() noexcept {
    rest_ = trim_left(tail_from(rest_, next_));
    if (begins_with(rest_, Char(','))) rest_.remove_prefix(1);
    const Char end = take_opening_quote();
    const std::size_t found = find_unit(rest_, end);
    if (found == kNotFound && end != kBlank<Char>) return std::nullopt;
    const std::size_t size = found == kNotFound ? rest_.size() : found;
    next_ = size + 1;
    return trim(rest_.substr(0, size));
  }

  // Whether nothing stood where the last token was read. True a step later than one expects: the
  // remaining text still begins with the last token, less its opening quote.
  bool at_end() const noexcept { return rest_.empty(); }

 private:
  // Gives the character that ends the token.
  Char take_opening_quote() noexcept {
    if (!begins_with(rest_, kApostrophe<Char>) && !begins_with(rest_, kDoubleQuote<Char>)) {
      return kBlank<Char>;
    }
    const Char quote = rest_.front();
    rest_.remove_prefix(1);
    return quote;
  }

  View<Char> rest_;
  std::size_t next_ = 0;  // where the next token begins in rest_
};

// The token number `number` (from 1) of `text`; empty when there is none, when an unclosed quote
// stands before its end, and for numbers below 1.
template <class Char, class Number>
View<Char> token_at(View<Char> text, Number number) noexcept {
  TokenReader<Char> reader(text);
  std::optional<View<Char>> token = View<Char>();
  for (; number > 0; --number) {
    token = reader.next();
    if (!token || reader.at_end()) return {};
  }
  return *token;
}

}  // namespace kw::parse
