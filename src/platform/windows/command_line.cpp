#include "platform/command_line.h"

#include "base/unicode.h"
#include "platform/windows/system.h"
// After the system's general header.
#include <shellapi.h>

namespace kw::platform {

std::vector<std::string> command_line(int, const char* const*) {
  int count = 0;
  WCHAR** const words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> result;
  for (int i = 1; i < count; ++i)
    result.push_back(to_utf8(reinterpret_cast<const char16_t*>(words[i])));
  LocalFree(words);
  return result;
}

}  // namespace kw::platform
