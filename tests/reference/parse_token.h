// Tokens of a line, step by step.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "reference/basic_text.h"

namespace kw::reference {

template <class Char>
struct TokenStep {
  Text<Char> rest;
  std::size_t p = 0;
  Text<Char> token;

  // Reads the next token; false when its quote is never closed.
  bool read() {
    rest = ltrim(mid(rest, p + 1));
    if (left(rest, 1) == text_of<Char>(",")) rest = mid(rest, 2);
    const Text<Char> first = left(rest, 1);
    if (first == text_of<Char>("'") || first == text_of<Char>("\"")) {
      rest = mid(rest, 2);
      p = in_str(rest, first);
    } else {
      p = in_str<Char>(rest + text_of<Char>(" "), text_of<Char>(" "));
    }
    if (p == 0) return false;
    token = trim(left(rest, p - 1));
    return true;
  }
};

template <class Char>
Text<Char> parse_token(const Text<Char>& buf, int n) {
  TokenStep<Char> step{buf, 0, {}};
  for (int i = 1; i <= n; ++i) {
    if (!step.read()) return {};
  }
  return step.token;
}

// An array of texts with its lower bound; a shorter one is never made of it.
template <class Char>
struct TextArray {
  bool dimensioned = false;
  bool locked = false;
  int lower = 0;
  std::vector<Text<Char>> elements;

  int upper() const { return lower + static_cast<int>(elements.size()) - 1; }
  bool holds(int index) const { return dimensioned && index >= lower && index <= upper(); }
  void store(int index, const Text<Char>& text) {
    if (holds(index)) elements[static_cast<std::size_t>(index - lower)] = text;
  }
  // Bounds 0 to `new_upper` with the contents kept; does nothing where that cannot be done.
  void grow(int new_upper) {
    if (locked || (dimensioned && lower != 0) || new_upper < 0) return;
    dimensioned = true;
    elements.resize(static_cast<std::size_t>(new_upper) + 1);
  }
};

template <class Char>
int parse_token_array(const Text<Char>& buf, int scan_to, TextArray<Char>& array) {
  int count = 0;
  int u = array.dimensioned ? array.upper() : 0;
  TokenStep<Char> step{buf, 0, {}};
  while (step.read()) {
    ++count;
    if (count > u) array.grow(++u);
    array.store(count, step.token);
    if (count == scan_to) break;
    if (step.rest.empty()) break;
  }
  return count;
}

}  // namespace kw::reference
