#include "floors.h"

#include "line_reader.h"
#include "trimmed_writer.h"

namespace kw::bench {
Seen floor_read(const std::filesystem::path& file) {
  Seen seen;
  for_each_line(file, [&seen](const Line& line) { seen.note(line); });
  return seen;
}

Seen floor_rewrite(const std::filesystem::path& file, Flush flush) {
  Seen seen;
  const std::filesystem::path second = std::filesystem::path(file) += ".new";
  TrimmedWriter writer(second);
  for_each_line(file, [&](const Line& line) {
    seen.note(line);
    writer.write(line);
  });
  writer.finish(flush == Flush::yes);
  std::filesystem::rename(second, file);
  return seen;
}

}  // namespace kw::bench
