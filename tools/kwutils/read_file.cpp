#include "tool/read_file.h"

#include "base/unicode.h"

namespace kw::tool {

std::string read_whole(platform::InputFile& file) {
  std::string text;
  std::string block(256 * 1024, '\0');
  while (const std::size_t size = file.read(block.data(), block.size()))
    text.append(block, 0, size);
  return text;
}

std::string read_file(const std::string& path) {
  return read_whole(*platform::files().open_input(from_utf8(path)));
}

}  // namespace kw::tool
