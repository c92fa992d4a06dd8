// The window of a host program, shown and active.
#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "platform/windows/system.h"

namespace kw::testing {

class HostWindow {
 public:
  explicit HostWindow(const std::u16string& caption)
      : window_(CreateWindowExW(0, L"STATIC", platform::wide(caption), WS_OVERLAPPEDWINDOW, 50, 50,
                                300, 200, nullptr, nullptr, nullptr, nullptr)) {
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    SetActiveWindow(window_);
    await_activation();
  }
  ~HostWindow() { DestroyWindow(window_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  HWND get() const noexcept { return window_; }

 private:
  void await_activation() const {
    using namespace std::chrono_literals;
    MSG message{};
    for (int i = 0; i < 500 && GetForegroundWindow() != window_; ++i) {
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      std::this_thread::sleep_for(10ms);
    }
  }

  HWND window_;
};

}  // namespace kw::testing
