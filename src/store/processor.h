// What the processor that the program runs on can do.
#pragma once

namespace kw::store {

#if defined(__x86_64__) || defined(__i386__)
inline bool has_sse2() noexcept { return __builtin_cpu_supports("sse2") != 0; }
inline bool has_avx2() noexcept {
  return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi") != 0 &&
         __builtin_cpu_supports("popcnt") != 0;
}
#endif

}  // namespace kw::store
