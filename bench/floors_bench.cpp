// The floors of the entity store as benchmarks. This file is a part of every program that measures
// the store, so that a method and its floor run beside each other.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <stdexcept>

#include "entity_data.h"
#include "entity_text.h"
#include "floors.h"
#include "measure.h"
#include "scratch_copy.h"

namespace kw::bench {
namespace {

const EntityFile& file_of(const benchmark::State& state) {
  return entity_file(static_cast<std::size_t>(state.range(0)));
}

void count_bytes(benchmark::State& state, const EntityFile& file) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.bytes));
}

void require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

void f1(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  measure(state, [&] { return floor_read(file.path); });
  count_bytes(state, file);
}

void f1_table(benchmark::State& state) {
  const EntityFile& file = table_file(static_cast<std::size_t>(state.range(0)));
  measure(state, [&] { return floor_read(file.path); });
  count_bytes(state, file);
}

void f2(benchmark::State& state, Flush flush) {
  const EntityFile& file = file_of(state);
  const ScratchCopy copy(file.path);
  measure(
      state, [&] { copy.settle(); }, [&] { return floor_rewrite(copy.path(), flush); });
  count_bytes(state, file);
}

void f3(benchmark::State& state, Values values) {
  const EntityFile& file = file_of(state);
  measure(state, [&] {
    Delivered delivered = floor_deliver(file.path, kHalfType, values);
    require(delivered.values.size() == file.half_type_count, "an entity was missed");
    return delivered;
  });
  count_bytes(state, file);
}

void f3_rows(benchmark::State& state) {
  const auto rows = static_cast<std::size_t>(state.range(0));
  const EntityFile& file = table_file(rows);
  measure(state, [&] {
    Delivered delivered = floor_deliver(file.path, kSixthType, Values::rows);
    require(delivered.values.size() == rows, "a row was missed");
    return delivered;
  });
  count_bytes(state, file);
}

void spilled_rows(benchmark::State& state) {
  const auto rows = static_cast<std::size_t>(state.range(0));
  const EntityFile& file = table_file(rows);
  const auto second = data_folder() / "spilled_floor";
  measure(state, [&] {
    const std::size_t count = floor_spill_rows(file.path, kSixthType, second);
    require(count == rows, "a row was missed");
    return count;
  });
  count_bytes(state, file);
}

void at_all_sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kSmall)->Arg(kMedium)->Arg(kLarge)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

void on_the_table(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kTableRows)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(f1)->Name("F1")->Apply(at_all_sizes);
BENCHMARK(f1_table)->Name("F1_table")->Apply(on_the_table);
BENCHMARK_CAPTURE(f2, flushed, Flush::yes)->Name("F2")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(f2, unflushed, Flush::no)->Name("F2_unflushed")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(f3, entities, Values::entities)->Name("F3_entities")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(f3, keyed, Values::keyed_entities)
    ->Name("F3_keyed_entities")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(f3, ids, Values::ids)->Name("F3_ids")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(f3, names, Values::ids_and_names)->Name("F3_ids_and_names")->Apply(at_all_sizes);
BENCHMARK(f3_rows)->Name("F3_rows")->Apply(on_the_table);
BENCHMARK(spilled_rows)->Name("F1_spilled_rows")->Apply(on_the_table);

}  // namespace
}  // namespace kw::bench
