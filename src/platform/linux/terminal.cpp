#include "platform/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace kw::platform {

void use_plain_streams() noexcept {}

bool is_terminal(std::FILE* stream) noexcept { return isatty(fileno(stream)) == 1; }

int terminal_width(std::FILE* stream) noexcept {
  constexpr int kUsualWidth = 80;
  struct winsize size = {};
  const bool told = ioctl(fileno(stream), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return told ? size.ws_col : kUsualWidth;
}

}  // namespace kw::platform
