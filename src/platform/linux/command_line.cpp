#include "platform/command_line.h"

#include <algorithm>

namespace kw::platform {

std::vector<std::string> command_line(int count, const char* const* words) {
  return {words + std::min(count, 1), words + count};
}

}  // namespace kw::platform
