// The writers of the store on a copy of a whole file, each beside F2, which flushes as they do.
// Those of one entity also without the flush, which a busy disk makes anything from short to long.
#include <optional>
#include <string>

#include "floors.h"
#include "platform/linux/system_calls.h"
#include "scratch_copy.h"
#include "store_bench.h"

namespace kw::bench {
namespace {

struct NoFlush : platform::SystemCalls {
  int fsync(int) override { return 0; }
};

// Calls write(store, name of the copy). The file differs from one call to the next by one entity.
template <class Write>
void on_a_copy(benchmark::State& state, Flush flush, Write write) {
  NoFlush calls;
  std::optional<platform::ScopedSystemCalls> unflushed;
  if (flush == Flush::no) unflushed.emplace(calls);
  const EntityFile& file = file_of(state);
  const ScratchCopy copy(file.path);
  String name = name_of(copy.path());
  const clsFileReadWrite store;
  measure(
      state, [&] { copy.settle(); },
      [&] {
        write(store, name);
        return 0;
      });
  count_bytes(state, file);
}

void write_entity_replacing(benchmark::State& state, Flush flush) {
  const std::size_t last = last_of(file_of(state), kHalfType);
  const String id = text(entity_id(last));
  const String entity = text("id '" + entity_id(last) + "' nm 'replaced' ");
  on_a_copy(state, flush, [&](const clsFileReadWrite& store, String& name) {
    store.WriteEntity(name, text(kHalfType), id, entity);
  });
}

void write_entity_appending(benchmark::State& state, Flush flush) {
  int number = 0;
  on_a_copy(state, flush, [&](const clsFileReadWrite& store, String& name) {
    const std::string id = "new" + std::to_string(++number);
    store.WriteEntity(name, text(kHalfType), text(id), text("id '" + id + "' nm 'added'"));
  });
}

void delete_entity(benchmark::State& state, Flush flush) {
  std::size_t last = file_of(state).entities;
  on_a_copy(state, flush, [&](const clsFileReadWrite& store, String& name) {
    store.DeleteEntity(name, text(entity_type(last)), text(entity_id(last)));
    --last;
  });
}

// Every so many-th entity of the type, 100,000 of them at most, with a new text.
Collection many_entities(const EntityFile& file) {
  const Collection entities = Collection::create();
  constexpr std::size_t kMost = 100'000;
  const std::size_t step = file.half_type_count / kMost + 1;
  std::size_t met = 0;
  for (std::size_t number = 1; number <= file.entities; ++number) {
    if (entity_type(number) != kHalfType || met++ % step != 0) continue;
    const std::string id = entity_id(number);
    entities.add(text("id '" + id + "' nm 'written'"), text(id));
  }
  return entities;
}

// Calls write(store, name, collection) with a fresh copy and a fresh collection each time.
template <class Write>
void with_many(benchmark::State& state, Write write) {
  const EntityFile& file = file_of(state);
  const clsFileReadWrite store;
  std::unique_ptr<ScratchCopy> copy;
  Collection entities;
  measure(
      state,
      [&] {
        copy = std::make_unique<ScratchCopy>(file.path);
        entities = many_entities(file);
        copy->settle();
      },
      [&] {
        String name = name_of(copy->path());
        write(store, name, entities);
        return 0;
      });
  count_bytes(state, file);
}

void delete_entities_from_collection(benchmark::State& state) {
  with_many(state, [](const clsFileReadWrite& store, String& name, Collection& entities) {
    store.DeleteEntitiesFromCollection(name, text(kHalfType), entities);
  });
}

void write_entities_from_collection(benchmark::State& state) {
  with_many(state, [](const clsFileReadWrite& store, String& name, Collection& entities) {
    require(store.WriteEntitiesFromCollection(name, text(kHalfType), entities), "nothing written");
  });
}

BENCHMARK_CAPTURE(write_entity_replacing, flushed, Flush::yes)
    ->Name("WriteEntity_replace")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(write_entity_replacing, unflushed, Flush::no)
    ->Name("WriteEntity_replace_unflushed")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(write_entity_appending, flushed, Flush::yes)
    ->Name("WriteEntity_append")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(write_entity_appending, unflushed, Flush::no)
    ->Name("WriteEntity_append_unflushed")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(delete_entity, flushed, Flush::yes)->Name("DeleteEntity")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(delete_entity, unflushed, Flush::no)
    ->Name("DeleteEntity_unflushed")
    ->Apply(at_all_sizes);
BENCHMARK(delete_entities_from_collection)
    ->Name("DeleteEntitiesFromCollection")
    ->Apply(at_all_sizes);
BENCHMARK(write_entities_from_collection)->Name("WriteEntitiesFromCollection")->Apply(at_all_sizes);

}  // namespace
}  // namespace kw::bench
