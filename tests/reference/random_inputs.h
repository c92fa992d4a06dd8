// Randomised comparisons: a fixed seed and a time budget, or a million inputs.
#pragma once

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace kw::reference {

using Random = std::mt19937_64;

// Whether the environment asks for the long form of the tests (KW_LONG=1).
inline bool long_tests() {
  const char* value = std::getenv("KW_LONG");
  return value != nullptr && std::string_view(value) == "1";
}

// A number from `first` to `last`.
inline std::size_t pick(Random& random, std::size_t first, std::size_t last) {
  return first + static_cast<std::size_t>(random() % (last - first + 1));
}

// A text of at most `longest` characters, each drawn from `alphabet`.
template <class Char>
std::basic_string<Char> pick_text(Random& random, std::basic_string_view<Char> alphabet,
                                  std::size_t longest) {
  std::basic_string<Char> text(pick(random, 0, longest), Char());
  for (Char& character : text) character = alphabet[pick(random, 0, alphabet.size() - 1)];
  return text;
}

// Calls body(random) again and again: for `budget`, or a million times in the long form. Gives the
// number of calls. The same `seed` gives the same inputs in the same order.
template <class Body>
std::uint64_t for_random_inputs(std::uint64_t seed, Body body,
                                std::chrono::milliseconds budget = std::chrono::seconds(1)) {
  Random random(seed);
  const auto end = std::chrono::steady_clock::now() + budget;
  std::uint64_t calls = 0;
  do {
    body(random);
    ++calls;
  } while (long_tests() ? calls < 1'000'000 : std::chrono::steady_clock::now() < end);
  return calls;
}

}  // namespace kw::reference
