// What the methods of the store hold in memory beyond their result, texts apart, at three sizes of
// file: at most 2 MiB at each of them. The column "held" shows it.
#include <algorithm>

#include "scratch_copy.h"
#include "store/counted_memory.h"
#include "store_bench.h"

namespace kw::bench {
namespace {

// Counts what call(store, file name) holds at the most.
template <class Call>
void count_memory(benchmark::State& state, const std::filesystem::path& path, Call call) {
  const String name = name_of(path);
  const clsFileReadWrite store;
  std::size_t most = 0;
  measure(state, [&] {
    store::restart_memory_peak();
    call(store, name);
    most = std::max(most, store::memory_peak());
    return most;
  });
  constexpr std::size_t kMost = std::size_t{2} << 20;
  if (most > kMost) state.SkipWithError("more than 2 MiB are held");
  state.counters["held"] = static_cast<double>(most);
}

void get_entity(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const String id = text(entity_id(last_of(file, kHalfType)));
  count_memory(state, file.path, [&](const clsFileReadWrite& store, const String& name) {
    require(!store.GetEntity(name, text(kHalfType), id).empty(), "the entity was not found");
  });
}

void check_or_create_new_id(benchmark::State& state) {
  count_memory(state, file_of(state).path, [&](const clsFileReadWrite& store, const String& name) {
    String type = text(kHalfType);
    store.CheckOrCreateNewID(name, type, String());
  });
}

void search_key_and_id_in_file(benchmark::State& state) {
  count_memory(state, file_of(state).path, [&](const clsFileReadWrite& store, const String& name) {
    std::int32_t present = 0, keys = 0, ids = 0;
    store.SearchKeyAndIDInFile(name, text(kHalfType), u"nm", u"nobody", u"id", u"none", present,
                               keys, ids);
  });
}

void write_entity(benchmark::State& state) {
  const ScratchCopy copy(file_of(state).path);
  count_memory(state, copy.path(), [&](const clsFileReadWrite& store, const String& name) {
    String variable(name.view());
    store.WriteEntity(variable, text(kHalfType), u"new", u"id 'new' nm 'added'");
  });
}

void get_table_entry_using_temp_file(benchmark::State& state) {
  const String spill = name_of(data_folder() / "spilled_rows");
  const EntityFile& file = table_file(static_cast<std::size_t>(state.range(0)));
  count_memory(state, file.path, [&](const clsFileReadWrite& store, const String& name) {
    Array<String> table;
    Boolean stored;
    store.GetTableEntryUsingTempFile(name, String(), text(kSixthType), text(entity_id(1)), table,
                                     spill, stored);
    require(stored, "the rows were not written to the file");
  });
}

void on_the_table(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kTableRows)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(get_entity)->Name("Held_GetEntity_last")->Apply(at_all_sizes);
BENCHMARK(check_or_create_new_id)->Name("Held_CheckOrCreateNewID")->Apply(at_all_sizes);
BENCHMARK(search_key_and_id_in_file)->Name("Held_SearchKeyAndIDInFile")->Apply(at_all_sizes);
BENCHMARK(write_entity)->Name("Held_WriteEntity_append")->Apply(at_all_sizes);
BENCHMARK(get_table_entry_using_temp_file)
    ->Name("Held_GetTableEntryUsingTempFile")
    ->Apply(on_the_table);

}  // namespace
}  // namespace kw::bench
