#include "tool/session.h"

namespace kw::tool {

void Session::say(std::string_view message) {
  std::fflush(out_file);
  std::fprintf(err_file, "kwutils: %.*s\n", static_cast<int>(message.size()), message.data());
}

}  // namespace kw::tool
