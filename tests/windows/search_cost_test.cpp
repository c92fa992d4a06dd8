// What it costs a search that the host's messages are looked after. The search and the system's
// pump are those of the library; only the question who has messages is answered here.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "kwutils/clsFileReadWrite.h"
#include "platform/temporary_folder.h"

// The functions under test, under other names: this program answers for them.
#define process_events system_process_events
#define turns system_turns
#include "platform/windows/events.cpp"
#undef process_events
#undef turns

namespace kw::platform {
namespace {
bool g_pumps = true;
int g_turns = 0;
}  // namespace

void process_events() {
  ++g_turns;
  if (g_pumps) system_process_events();
}
Turns turns() noexcept { return g_pumps ? system_turns() : Turns::nobody; }

}  // namespace kw::platform

namespace kw::testing {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRecords = 2000000;

class SearchCost : public ::testing::Test {
 protected:
  SearchCost() {
    std::string records;
    for (int i = 0; i < kRecords; ++i) records += "LINK id '" + std::to_string(i) + "' link\r\n";
    folder_.write("long.ent", records);
  }
  // Seconds that a search takes which finds nothing.
  double search(bool pumps) {
    platform::g_pumps = pumps;
    Collection ids, names;
    String file(folder_.name("long.ent")), token(u"NODE"), id(u"id"), name(u"nm"), none;
    const Boolean yes(true), no(false);
    const auto start = Clock::now();
    clsFileReadWrite().List2EntitieswithSearch(file, token, id, none, ids, name, names, yes, no);
    return std::chrono::duration<double>(Clock::now() - start).count();
  }
  TemporaryFolder folder_;
};

int g_handled = 0;
void CALLBACK count_timer(HWND, UINT, UINT_PTR, DWORD) { ++g_handled; }

TEST_F(SearchCost, MessagesAreHandledMeanwhile) {
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // makes the thread's queue
  // A message that its own callback handles needs no window.
  PostThreadMessageW(GetCurrentThreadId(), WM_TIMER, 0, reinterpret_cast<LPARAM>(&count_timer));
  Sleep(20);
  search(false);
  EXPECT_EQ(g_handled, 0);
  search(true);
  EXPECT_EQ(g_handled, 1);
}

TEST_F(SearchCost, EveryRecordIsFollowedByATurn) {
  platform::g_turns = 0;
  search(true);
  EXPECT_GE(platform::g_turns, kRecords);
  platform::g_turns = 0;
  search(false);
  EXPECT_EQ(platform::g_turns, 0);
}

TEST_F(SearchCost, IsAtMostTwiceThatWithoutThePump) {
  search(false);  // the file is in the system's memory from here on
  double with = 1e9, without = 1e9;
  for (int i = 0; i < 5; ++i) {
    without = std::min(without, search(false));
    with = std::min(with, search(true));
  }
  RecordProperty("ratio", std::to_string(with / without));
  std::printf("%d records: %.0f ms, %.0f ms without the pump\n", kRecords, with * 1e3,
              without * 1e3);
  EXPECT_LT(with, 2 * without);
}

}  // namespace
}  // namespace kw::testing
