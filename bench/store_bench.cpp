// The entity store beside its floors: one-entity look-ups, bulk reads, rewrites.
#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>

#include "base/unicode.h"
#include "entity_data.h"
#include "entity_text.h"
#include "kwutils/clsFileReadWrite.h"
#include "measure.h"
#include "scratch_copy.h"

namespace kw::bench {
namespace {

const EntityFile& file_of(const benchmark::State& state) {
  return entity_file(static_cast<std::size_t>(state.range(0)));
}

String name_of(const std::filesystem::path& path) { return String::from_utf8(path.native()); }
String text(std::string_view ascii) { return String::from_utf8(ascii); }

void require(bool holds) {
  if (!holds) throw std::runtime_error("the method gave something else than the file holds");
}

void get_entity_last(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const clsFileReadWrite store;
  const String name = name_of(file.path), type = text(entity_type(file.entities)),
               id = text(entity_id(file.entities));
  measure(state, [&] {
    String entity = store.GetEntity(name, type, id);
    require(!entity.empty());
    return entity;
  });
}

void get_entities(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const clsFileReadWrite store;
  const String name = name_of(file.path), type = text(kHalfType);
  measure(state, [&] {
    Array<String> entities;
    store.GetEntities(name, type, entities);
    require(entities.size() == file.half_type_count + 1);
    return entities;
  });
}

template <auto Method>
void into_collection(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const clsFileReadWrite store;
  const String name = name_of(file.path), type = text(kHalfType);
  measure(state, [&] {
    Collection values;
    (store.*Method)(name, type, values);
    require(values.count() == static_cast<std::int32_t>(file.half_type_count));
    return values;
  });
}

void write_entity(benchmark::State& state, const char* id, const char* body) {
  const ScratchCopy copy(file_of(state).path);
  const clsFileReadWrite store;
  String name = name_of(copy.path());
  const String type = text(entity_type(1)), sought = text(id), entity = text(body);
  measure(
      state, [&] { copy.settle(); },
      [&] {
        store.WriteEntity(name, type, sought, entity);
        return 0;
      });
}

void at_all_sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kSmall)->Arg(kMedium)->Arg(kLarge)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(get_entity_last)->Name("GetEntity_last")->Apply(at_all_sizes);
BENCHMARK(get_entities)->Name("GetEntities")->Apply(at_all_sizes);
BENCHMARK(into_collection<&clsFileReadWrite::GetEntitiesIntoColl>)
    ->Name("GetEntitiesIntoColl")
    ->Apply(at_all_sizes);
BENCHMARK(into_collection<&clsFileReadWrite::GetEntityIDsIntoColl>)
    ->Name("GetEntityIDsIntoColl")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(write_entity, replace, "N1", "id 'N1' nm 'replaced'")
    ->Name("WriteEntity_replace")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(write_entity, append, "new", "nm 'one more'")
    ->Name("WriteEntity_append")
    ->Apply(at_all_sizes);

}  // namespace
}  // namespace kw::bench
