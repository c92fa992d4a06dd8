#include "platform/events.h"

#include <atomic>

#include "platform/host_functions.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

// A question to the system costs more than a record does. In one tick of the system's clock it is
// therefore asked so many times at most: every time in a short search, now and then in a long one.
constexpr int kMostQuestionsInOneTick = 16;

bool worth_asking() {
  static std::atomic<ULONGLONG> tick{0};
  static std::atomic<int> questions{0};
  // Asked after every record: another thread's search may spoil the count a little, but does not
  // have to be waited for.
  constexpr auto kRelaxed = std::memory_order_relaxed;
  const ULONGLONG now = GetTickCount64();
  if (tick.load(kRelaxed) != now) {
    tick.store(now, kRelaxed);
    questions.store(0, kRelaxed);
  }
  const int asked = questions.load(kRelaxed);
  if (asked >= kMostQuestionsInOneTick) return false;
  questions.store(asked + 1, kRelaxed);
  return true;
}

bool anything_waits() { return HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0; }

void pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // It is meant for the host's own loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

void process_events() {
  const HostFunctions& host = host_functions();
  if (host.process_events != nullptr) return host.process_events(host.context);
  if (worth_asking() && anything_waits()) pump();
}

Turns turns() noexcept {
  return host_functions().process_events != nullptr ? Turns::host : Turns::system;
}

}  // namespace kw::platform
