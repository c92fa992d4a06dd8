#include "base/unicode.h"
#include "kwutils/collection.h"
#include "tool/command.h"
#include "tool/entity_store.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/type_counts.h"

namespace kw::tool {
namespace {

void write_count(Session& session, JsonWriter& json, const TypeCount& count) {
  if (!session.json) {
    session.out << count.type << "\t" << std::to_string(count.entities) << "\n";
    return;
  }
  json.begin_object();
  json.key("type").text(count.type);
  json.key("count").number(count.entities);
  json.end();
}

ExitCode list_types(Session& session, const EntityFile& file) {
  const auto counts = working_on("cannot count the types", file.path,
                                 [&] { return count_types(from_utf8(file.path)); });
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for (const TypeCount& count : counts) write_count(session, json, count);
  if (session.json) json.end();
  return counts.empty() ? ExitCode::not_found : ExitCode::done;
}

void write_entity(Session& session, JsonWriter& json, std::u16string_view entity) {
  const auto id = item_of(entity, u"id");
  const auto name = item_of(entity, u"nm");
  if (!session.json) {
    session.out << (id ? id->view() : u"") << "\t" << (name ? name->view() : u"") << "\n";
    return;
  }
  json.begin_object();
  if (id) json.key("id").text(id->view());
  if (name) json.key("name").text(name->view());
  json.end();
}

ExitCode list_entities(Session& session, const EntityFile& file) {
  Collection entities;
  working_on("cannot list " + file.type, file.path,
             [&] { clsFileReadWrite().GetEntitiesIntoColl(file.name(), file.token(), entities); });
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for_each_text(entities, [&](std::u16string_view entity) { write_entity(session, json, entity); });
  if (session.json) json.end();
  return entities.count() == 0 ? ExitCode::not_found : ExitCode::done;
}

ExitCode run_list(Session& session, const EntityFile& file) {
  return file.type.empty() ? list_types(session, file) : list_entities(session, file);
}

ExitCode run_ids(Session& session, const EntityFile& file) {
  Collection ids;
  working_on("cannot list the identifiers of " + file.type, file.path,
             [&] { clsFileReadWrite().GetEntityIDsIntoColl(file.name(), file.token(), ids); });
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for_each_text(ids, [&](std::u16string_view id) {
    if (session.json)
      json.text(id);
    else
      session.out << id << "\n";
  });
  if (session.json) json.end();
  return ids.count() == 0 ? ExitCode::not_found : ExitCode::done;
}

}  // namespace

void add_list(Arguments app, Session& session) {
  auto [line, file] = add_command<EntityFile>(
      app, session, "list", "List the types of a file with their counts, or the entities of a type",
      "kwutils list plant.ent\n"
      "  kwutils list plant.ent NODE\n\n"
      "Entities are shown as identifier and name (items id and nm), a tab between them.",
      &run_list);
  line.add_option("FILE", file.path, "The entity file").required();
  line.add_option("TYPE", file.type, "Type of the entities, in any case");
}

void add_ids(Arguments app, Session& session) {
  auto [line, file] =
      add_command<EntityFile>(app, session, "ids", "List the identifiers of a type, each once",
                              "kwutils ids plant.ent NODE", &run_ids);
  add_file(line, file);
}

}  // namespace kw::tool
