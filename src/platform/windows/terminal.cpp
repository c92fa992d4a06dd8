#include "platform/terminal.h"

#include <fcntl.h>
#include <io.h>

#include <cstdlib>

#include "platform/windows/system.h"

namespace kw::platform {
namespace {

HANDLE console_of(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

UINT g_code_page_before = 0;

// The terminal outlives the program, and its next user expects it as it was.
void restore_code_page() { SetConsoleOutputCP(g_code_page_before); }

}  // namespace

void use_plain_streams() noexcept {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  if (!is_terminal(stdout) && !is_terminal(stderr)) return;
  g_code_page_before = GetConsoleOutputCP();
  if (SetConsoleOutputCP(CP_UTF8)) std::atexit(&restore_code_page);
}

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
