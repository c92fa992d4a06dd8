// How every benchmark takes its time.
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <exception>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace kw::bench {

// What an earlier benchmark left in the allocator must not be paid for by the next one.
inline void tidy_heap() {
#if defined(__GLIBC__)
  ::malloc_trim(0);
#endif
}

// Nor what the release of a result left by the next call: glibc joins small pieces that were given
// back when somebody asks for a larger one.
inline void finish_releases() {
#if defined(__GLIBC__)
  void* larger = std::malloc(std::size_t{1} << 16);
  benchmark::DoNotOptimize(larger);
  std::free(larger);
#endif
}

// Times work() alone: neither prepare(), which runs before it, nor the release of what it returns.
// Register the benchmark with UseManualTime(). A failure that is thrown fails the benchmark.
template <class Prepare, class Work>
void measure(benchmark::State& state, Prepare prepare, Work work) try {
  using Clock = std::chrono::steady_clock;
  tidy_heap();
  for (auto step : state) {
    static_cast<void>(step);
    prepare();
    finish_releases();
    const auto start = Clock::now();
    auto result = work();
    const auto stop = Clock::now();
    benchmark::DoNotOptimize(&result);
    benchmark::ClobberMemory();
    state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
  }
} catch (const std::exception& failure) {
  state.SkipWithError(failure.what());
}

template <class Work>
void measure(benchmark::State& state, Work work) {
  measure(
      state, [] {}, work);
}

}  // namespace kw::bench
