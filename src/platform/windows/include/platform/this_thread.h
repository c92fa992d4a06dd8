// Which thread is running, as cheaply as the system can tell.
#pragma once

#include <cstdint>

extern "C" __declspec(dllimport) unsigned long __stdcall GetCurrentThreadId();

namespace kw::platform {

inline std::uintptr_t this_thread() noexcept { return GetCurrentThreadId(); }

}  // namespace kw::platform
