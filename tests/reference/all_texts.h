// Every text over a small alphabet.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kw::reference {

// Calls visit(text) for every text of at most `longest` characters over `alphabet`, the empty one
// first. With n characters in the alphabet that is about n to the power of `longest` calls.
template <class Char, class Visit>
void for_all_texts(std::basic_string_view<Char> alphabet, std::size_t longest, Visit visit) {
  std::basic_string<Char> text;
  std::size_t digits[32] = {};
  for (std::size_t length = 0; length <= longest; ++length) {
    text.assign(length, alphabet.front());
    for (std::size_t at = 0; at < length; ++at) digits[at] = 0;
    for (bool more = true; more;) {
      visit(std::basic_string_view<Char>(text));
      more = false;
      for (std::size_t at = 0; at < length && !more; ++at) {
        more = ++digits[at] < alphabet.size();
        if (!more) digits[at] = 0;
        text[at] = alphabet[digits[at]];
      }
    }
  }
}

}  // namespace kw::reference
