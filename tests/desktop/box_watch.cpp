#include "desktop/box_watch.h"

#include <chrono>

namespace kw::testing {
namespace {

using namespace std::chrono_literals;

BOOL CALLBACK take_own(HWND window, LPARAM found) {
  char16_t kind[16] = {};
  GetClassNameW(window, reinterpret_cast<WCHAR*>(kind), 16);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != GetCurrentProcessId() || !IsWindowVisible(window) ||
      std::u16string_view(kind) != u"#32770")
    return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

HWND box_on_screen() {
  HWND box = nullptr;
  EnumWindows(take_own, reinterpret_cast<LPARAM>(&box));
  return box;
}

// None when no box appears within some seconds.
HWND next_box() {
  for (int i = 0; i < 2000; ++i) {
    if (const HWND box = box_on_screen()) return box;
    std::this_thread::sleep_for(10ms);
  }
  return nullptr;
}

void await_end(HWND box) {
  for (int i = 0; i < 2000 && IsWindow(box); ++i) std::this_thread::sleep_for(10ms);
}

std::u16string text_of(HWND window) {
  char16_t text[500] = {};
  GetWindowTextW(window, reinterpret_cast<WCHAR*>(text), 500);
  return text;
}

SeenBox look_at(HWND box) {
  constexpr int kTextOfABox = 0xFFFF;
  const HWND owner = GetWindow(box, GW_OWNER);
  return {text_of(box), text_of(GetDlgItem(box, kTextOfABox)), owner, IsWindowEnabled(owner) != 0};
}

}  // namespace

BoxWatch::BoxWatch(std::vector<int> answers)
    : thread_([this, answers = std::move(answers)] { answer_all(answers); }) {}

BoxWatch::~BoxWatch() {
  if (thread_.joinable()) thread_.join();
}

const std::vector<SeenBox>& BoxWatch::seen() {
  if (thread_.joinable()) thread_.join();
  return seen_;
}

void BoxWatch::answer_all(const std::vector<int>& answers) {
  for (const int answer : answers) {
    const HWND box = next_box();
    if (box == nullptr) return;
    seen_.push_back(look_at(box));
    PostMessageW(GetDlgItem(box, answer), BM_CLICK, 0, 0);
    await_end(box);
  }
}

}  // namespace kw::testing
