// FileOpenModes: how a file is to be opened.
#pragma once

#include <cstdint>

namespace kw {

// The values that callers pass to clsFileUtil::FileOpener.
enum FileOpenModes : std::int32_t {
  NO_FILE = -1,
  REPLACE_FILE = 1,
  READ_FILE = 2,
  APPEND_FILE = 3,
  BINARY_FILE = 4,
  BINARY_WRITE_FILE = 5,
};

}  // namespace kw
