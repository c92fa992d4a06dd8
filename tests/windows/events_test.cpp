#include "platform/events.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/windows/system.h"

namespace kw::platform {
namespace {

int g_handled = 0;

void CALLBACK count_timer(HWND, UINT, UINT_PTR, DWORD) { ++g_handled; }

// A message that its own callback handles needs no window.
void post_work() {
  PostThreadMessageW(GetCurrentThreadId(), WM_TIMER, 0, reinterpret_cast<LPARAM>(&count_timer));
}

class Events : public ::testing::Test {
 protected:
  Events() {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the thread's queue
    g_handled = 0;
  }
};

TEST_F(Events, WaitingMessagesAreHandled) {
  post_work();
  post_work();
  Sleep(20);
  process_events();
  EXPECT_EQ(g_handled, 2);
}

TEST_F(Events, AQuitMessageStaysForTheHost) {
  PostQuitMessage(7);
  Sleep(20);
  process_events();
  MSG message = {};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(Events, AskingCostsLittleWhileNothingWaits) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 2000000; ++i) process_events();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST_F(Events, MessagesAreHandledDuringALongSearch) {
  for (int i = 0; i < 100000; ++i) process_events();
  post_work();
  const auto start = std::chrono::steady_clock::now();
  while (g_handled == 0 && std::chrono::steady_clock::now() - start < std::chrono::seconds(5))
    process_events();
  EXPECT_EQ(g_handled, 1);
}

}  // namespace
}  // namespace kw::platform
