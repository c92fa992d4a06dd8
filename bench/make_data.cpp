// Makes every generated file that is missing or wrong, and lists them. Run before a measurement, so
// that no benchmark waits for its data.
#include <exception>
#include <iostream>

#include "entity_data.h"

namespace {

void show(const kw::bench::EntityFile& file) {
  std::cout << file.path.filename().string() << ": " << file.entities << " entities, " << file.lines
            << " lines, " << file.bytes << " bytes, "
            << static_cast<double>(file.bytes) / static_cast<double>(file.lines)
            << " bytes a line\n";
}

}  // namespace

int main() try {
  using namespace kw::bench;
  for (const std::size_t size : {kSmall, kMedium, kLarge}) show(entity_file(size));
  show(table_file(kTableRows));
  return 0;
} catch (const std::exception& failure) {
  std::cerr << "bench_data: " << failure.what() << '\n';
  return 1;
}
