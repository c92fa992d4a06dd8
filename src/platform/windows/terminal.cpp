#include "platform/terminal.h"

#include <io.h>

#include "platform/windows/system.h"

namespace kw::platform {
namespace {

HANDLE console_of(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

}  // namespace

bool is_terminal(std::FILE* stream) noexcept {
  DWORD mode = 0;
  return GetConsoleMode(console_of(stream), &mode) != 0;
}

int terminal_width(std::FILE* stream) noexcept {
  constexpr int kUsualWidth = 80;
  CONSOLE_SCREEN_BUFFER_INFO screen = {};
  if (GetConsoleScreenBufferInfo(console_of(stream), &screen) == 0) return kUsualWidth;
  return screen.srWindow.Right - screen.srWindow.Left + 1;
}

}  // namespace kw::platform
