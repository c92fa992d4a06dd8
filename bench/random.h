// The random numbers of the generated files: the same on every machine and with every compiler.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace kw::bench {

class Random {
 public:
  // Two streams with different numbers have nothing to do with each other.
  Random(std::uint64_t seed, std::uint64_t stream) : state_(seed + stream * 0xD1342543DE82EF95u) {
    next();
  }

  std::uint64_t next() {
    std::uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

  // A number from 0 to limit - 1; limit below 2^32.
  std::size_t below(std::size_t limit) {
    return static_cast<std::size_t>(((next() >> 32) * limit) >> 32);
  }

  std::size_t between(std::size_t low, std::size_t high) { return low + below(high - low + 1); }

  template <class T, std::size_t N>
  const T& pick(const std::array<T, N>& choices) {
    return choices[below(N)];
  }

  template <class T, std::size_t N>
  void shuffle(std::array<T, N>& items) {
    for (std::size_t i = N; i > 1; --i) std::swap(items[i - 1], items[below(i)]);
  }

 private:
  std::uint64_t state_;
};

}  // namespace kw::bench
