#include "tool/session.h"

#include <exception>

#include "platform/terminal.h"

namespace kw::tool {

Session::Session(std::FILE* answers, std::FILE* messages)
    : out_file(answers),
      err_file(messages),
      out(answers),
      progress(platform::is_terminal(messages) ? messages : nullptr) {}

void Session::say(std::string_view message) {
  progress.clear();
  try {
    out.flush();
  } catch (const std::exception&) {
    // The command's own flush at its end fails again, and reports it.
  }
  std::fprintf(err_file, "kwutils: %.*s\n", static_cast<int>(message.size()), message.data());
}

}  // namespace kw::tool
