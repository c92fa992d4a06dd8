#include "tool/read_file.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "base/unicode.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

constexpr std::size_t kBlock = 256 * 1024;

}  // namespace

std::string read_whole(platform::InputFile& file) {
  std::string text;
  std::string block(kBlock, '\0');
  while (const std::size_t size = file.read(block.data(), block.size()))
    text.append(block, 0, size);
  return text;
}

std::string read_file(const std::string& path) {
  return read_whole(*platform::files().open_input(from_utf8(path)));
}

std::string read_standard_input() {
  std::string text;
  std::string block(kBlock, '\0');
  while (const std::size_t size = std::fread(block.data(), 1, block.size(), stdin))
    text.append(block, 0, size);
  if (std::ferror(stdin) != 0)
    fail("cannot read standard input: " + std::system_category().message(errno));
  return text;
}

std::string read_text(const std::string& name) {
  if (name == "-") return read_standard_input();
  try {
    return read_file(name);
  } catch (const Error& error) {
    fail("cannot read " + in_quotes(name) + ": " + reason(error, name));
  }
}

std::string source_name(const std::string& name) { return name == "-" ? "standard input" : name; }

}  // namespace kw::tool
