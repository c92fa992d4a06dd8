// The readers of the store on whole files. Each is asked for what lies at the end of the file, or
// for all of it.
#include "kwutils/host.h"
#include "store_bench.h"

namespace kw::bench {
namespace {

void get_entity(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const std::size_t last = last_of(file, kHalfType);
  const String id = text(entity_id(last));
  const clsFileReadWrite store;
  measure(state, [&] {
    String entity = store.GetEntity(name, text(kHalfType), id);
    require(!entity.empty(), "the entity was not found");
    return entity;
  });
  count_bytes(state, file);
}

void get_entities(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const clsFileReadWrite store;
  measure(state, [&] {
    Array<String> entities;
    store.GetEntities(name, text(kHalfType), entities);
    require(entities.size() == file.half_type_count + 1, "an entity was missed");
    return entities;
  });
  count_bytes(state, file);
}

// Calls a method that fills a collection with something of each entity of the type.
template <class Read>
void into_collection(benchmark::State& state, Read read) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const clsFileReadWrite store;
  measure(state, [&] {
    Collection items;
    read(store, name, text(kHalfType), items);
    require(items.count() == static_cast<std::int32_t>(file.half_type_count),
            "an entity was missed");
    return items;
  });
  count_bytes(state, file);
}

void get_entities_into_coll(benchmark::State& state) {
  into_collection(state, [](const clsFileReadWrite& store, auto& name, auto&& type, auto& items) {
    store.GetEntitiesIntoColl(name, type, items);
  });
}

void get_entities_into_coll_with_key(benchmark::State& state) {
  into_collection(state, [](const clsFileReadWrite& store, auto& name, auto&& type, auto& items) {
    store.GetEntitiesIntoCollWithKey(name, type, items, true);
  });
}

void get_entity_ids_into_coll(benchmark::State& state) {
  into_collection(state, [](const clsFileReadWrite& store, auto& name, auto&& type, auto& items) {
    store.GetEntityIDsIntoColl(name, type, items);
  });
}

void check_or_create_new_id(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const String taken = text(entity_id(last_of(file, kHalfType)));
  const clsFileReadWrite store;
  measure(state, [&] {
    String type = text(kHalfType);
    String id = store.CheckOrCreateNewID(name, type, taken);
    require(id.view() == u"1", "not the identifier that is free");
    return id;
  });
  count_bytes(state, file);
}

void search_key_and_id_in_file(benchmark::State& state) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const String id = text(entity_id(last_of(file, kHalfType)));
  const clsFileReadWrite store;
  measure(state, [&] {
    std::int32_t present = 0, keys = 0, ids = 0;
    store.SearchKeyAndIDInFile(name, text(kHalfType), u"nm", u"nobody", u"id", id, present, keys,
                               ids);
    require(ids == 1, "the identifier was not counted");
    return ids;
  });
  count_bytes(state, file);
}

// The entities whose identifiers are in a collection of `wanted` ones, spread over the file.
void get_entities_with_collection(benchmark::State& state, std::size_t wanted) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const Collection ids = Collection::create();
  const std::size_t step = std::max<std::size_t>(file.half_type_count / wanted, 1);
  std::size_t met = 0;
  for (std::size_t number = 1; number <= file.entities; ++number) {
    if (entity_type(number) != kHalfType || met++ % step != 0) continue;
    ids.add(String(), text(entity_id(number)));
  }
  const clsFileReadWrite store;
  measure(state, [&] {
    Collection items;
    store.GetEntitiesWithCollection(name, text(kHalfType), items, ids);
    require(items.count() == ids.count(), "an entity was missed");
    return items;
  });
  count_bytes(state, file);
}

struct Lists {
  Collection ids, names;
};

void list(benchmark::State& state, std::string_view filter, std::size_t expected) {
  const EntityFile& file = file_of(state);
  const String name = name_of(file.path);
  const String search_value = text(filter);
  const clsFileReadWrite store;
  measure(state, [&] {
    Lists lists;
    String search, name_token;
    store.List2EntitieswithSearch(name, text(kHalfType), search, search_value, lists.ids,
                                  name_token, lists.names, true, false);
    require(lists.ids.count() == static_cast<std::int32_t>(expected), "an entity was missed");
    return lists;
  });
  count_bytes(state, file);
}

void list_all(benchmark::State& state) { list(state, "", file_of(state).half_type_count); }

void list_one(benchmark::State& state) {
  const std::size_t last = last_of(file_of(state), kHalfType);
  list(state, "nm '" + entity_name(last) + "'", 1);
}

// With a host that wants its turn after each record, and does nothing with it.
void list_one_for_a_host(benchmark::State& state) {
  std::size_t turns = 0;
  HostFunctions host;
  host.context = &turns;
  host.process_events = [](void* context) KW_STDCALL { ++*static_cast<std::size_t*>(context); };
  set_host(host);
  list_one(state);
  set_host(HostFunctions());
  if (turns == 0) state.SkipWithError("the host had no turn");
}

void get_table_entry(benchmark::State& state) {
  const auto rows = static_cast<std::int32_t>(state.range(0));
  const EntityFile& file = table_file(static_cast<std::size_t>(rows));
  const String name = name_of(file.path);
  const clsFileReadWrite store;
  measure(state, [&] {
    Array<String> table;
    store.GetTableEntry(name, String(), text(kSixthType), text(entity_id(1)), table);
    require(table.upper() == rows, "a row was missed");
    return table;
  });
  count_bytes(state, file);
}

void get_table_entry_using_temp_file(benchmark::State& state) {
  const auto rows = static_cast<std::int32_t>(state.range(0));
  const EntityFile& file = table_file(static_cast<std::size_t>(rows));
  const String name = name_of(file.path);
  const String spill = name_of(data_folder() / "spilled_rows");
  const clsFileReadWrite store;
  measure(state, [&] {
    Array<String> table;
    Boolean stored;
    const std::int32_t count = store.GetTableEntryUsingTempFile(
        name, String(), text(kSixthType), text(entity_id(1)), table, spill, stored);
    require(count == rows && stored, "a row was missed");
    return table;
  });
  count_bytes(state, file);
}

void on_the_table(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kTableRows)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(get_entity)->Name("GetEntity_last")->Apply(at_all_sizes);
BENCHMARK(get_entities)->Name("GetEntities")->Apply(at_all_sizes);
BENCHMARK(get_entities_into_coll)->Name("GetEntitiesIntoColl")->Apply(at_all_sizes);
BENCHMARK(get_entities_into_coll_with_key)->Name("GetEntitiesIntoCollWithKey")->Apply(at_all_sizes);
BENCHMARK(get_entity_ids_into_coll)->Name("GetEntityIDsIntoColl")->Apply(at_all_sizes);
BENCHMARK(check_or_create_new_id)->Name("CheckOrCreateNewID")->Apply(at_all_sizes);
BENCHMARK(search_key_and_id_in_file)->Name("SearchKeyAndIDInFile")->Apply(at_all_sizes);
BENCHMARK_CAPTURE(get_entities_with_collection, few, 100)
    ->Name("GetEntitiesWithCollection_100")
    ->Apply(at_all_sizes);
BENCHMARK_CAPTURE(get_entities_with_collection, half, SIZE_MAX)
    ->Name("GetEntitiesWithCollection_half")
    ->Apply(at_all_sizes);
BENCHMARK(list_all)->Name("List2EntitieswithSearch")->Apply(at_all_sizes);
BENCHMARK(list_one)->Name("List2EntitieswithSearch_one")->Apply(at_all_sizes);
BENCHMARK(list_one_for_a_host)->Name("List2EntitieswithSearch_one_hosted")->Apply(at_all_sizes);
BENCHMARK(get_table_entry)->Name("GetTableEntry")->Apply(on_the_table);
BENCHMARK(get_table_entry_using_temp_file)->Name("GetTableEntryUsingTempFile")->Apply(on_the_table);

}  // namespace
}  // namespace kw::bench
