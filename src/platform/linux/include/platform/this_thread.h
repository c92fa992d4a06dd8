// Which thread is running, as cheaply as the system can tell.
#pragma once

#include <cstdint>

namespace kw::platform {

// An address that no other live thread has: that of a variable of the thread's own. The model
// spares the call into the loader that a shared library's thread variables cost otherwise.
inline std::uintptr_t this_thread() noexcept {
  static thread_local __attribute__((tls_model("initial-exec"))) char mark;
  return reinterpret_cast<std::uintptr_t>(&mark);
}

}  // namespace kw::platform
