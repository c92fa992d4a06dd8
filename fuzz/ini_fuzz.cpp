// Any bytes as an INI file, with any names: what is read and what is written must be what the slow
// reader of the tests says.
#include <cstdlib>

#include "input.h"
#include "platform/ini/ini_file.h"
#include "platform/ini/utf16.h"
#include "platform/memory_files.h"
#include "reference/ini.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

std::string until_nul(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kw;
  fuzz::Input input(data, size);
  const std::string section = until_nul(input.text());
  const std::string key = until_nul(input.text());
  const std::string value = until_nul(input.text());
  const std::string content(input.rest());
  // Only the plain form has a slow reader; of the other one no more is asked than that it ends.
  const bool plain = !ini::is_utf16(content);

  platform::MemoryFiles files;
  const platform::ScopedFileService in_use(files);
  files.put(u"f", content);
  const auto read = ini::read_entry(u"f", section, key);
  require(!plain || read == reference::ini_get(content, section, key));

  ini::write_entry(u"f", section, key, value);
  require(!plain || files.content(u"f") == reference::ini_set(content, section, key, value));

  files.put(u"f", content);
  ini::write_entry(u"f", section, key, std::nullopt);
  require(!plain || files.content(u"f") == reference::ini_remove(content, section, key));
  return 0;
}
