// Any bytes as an entity file: the reader must deliver every record inside its buffers and end.
#include <cstdlib>

#include "input.h"
#include "platform/memory_files.h"
#include "store/record_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kw::fuzz::Input input(data, size);
  const auto start = input.number<std::uint16_t>();
  kw::platform::MemoryFiles files;
  files.put(u"f", std::string(input.rest()));
  const auto file = files.open_input(u"f");
  kw::store::RecordReader reader(*file);
  reader.seek(start);
  std::size_t bytes = 0;
  while (!reader.at_end()) {
    const std::string_view record =
        reader.next([&](std::string_view line) { bytes += line.size(); });
    for (const char c : record) bytes += c == '\r' || c == '\n' || c == '\t' || c == '\xA0';
  }
  // Line ends never get into a record, and odd blanks are made plain.
  if (bytes > input.rest().size()) std::abort();
  return 0;
}
