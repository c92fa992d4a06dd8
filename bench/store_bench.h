// What the benchmarks of the store share.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "entity_data.h"
#include "entity_text.h"
#include "kwutils/clsFileReadWrite.h"
#include "measure.h"

namespace kw::bench {

inline String text(std::string_view ascii) { return String::from_utf8(ascii); }
inline String name_of(const std::filesystem::path& path) { return text(path.string()); }

// The last entity of a type in a file, told by its number.
inline std::size_t last_of(const EntityFile& file, std::string_view type) {
  std::size_t number = file.entities;
  while (entity_type(number) != type) --number;
  return number;
}

inline const EntityFile& file_of(const benchmark::State& state) {
  return entity_file(static_cast<std::size_t>(state.range(0)));
}

inline void count_bytes(benchmark::State& state, const EntityFile& file) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.bytes));
}

inline void require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

inline void at_all_sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kSmall)->Arg(kMedium)->Arg(kLarge)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

}  // namespace kw::bench
