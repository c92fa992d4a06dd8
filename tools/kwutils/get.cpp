#include <optional>

#include "base/unicode.h"
#include "tool/command.h"
#include "tool/entity_store.h"
#include "tool/exact_lookup.h"
#include "tool/failure.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

struct GetOptions {
  EntityFile file;
  std::string id;
  std::string by;
  std::string item;
  std::optional<std::int32_t> at;
  bool without_table = false;
};

String read_whole(const GetOptions& options) {
  const clsFileReadWrite store;
  const String name = options.file.name();
  const String token = options.file.token();
  const String id = String::from_utf8(options.id);
  if (options.id.empty()) return store.GetTokenEntity(name, token);
  if (options.by.empty() && !options.at) return store.GetEntity(name, token, id);
  const Variant by =
      options.by.empty() ? Variant::missing() : Variant(String::from_utf8(options.by));
  const Variant at = options.at ? Variant(*options.at) : Variant::missing();
  return store.GetEntityWithTokenAndSeek(name, token, id, by, at);
}

String read(const GetOptions& options) {
  String entity = read_whole(options);
  if (entity.empty() || !options.without_table) return entity;
  const ExactLookup lookup = exact_lookup(options.file, options.id, entity);
  return clsFileReadWrite().GetEntityWithoutTable(options.file.name(), lookup.type, lookup.id);
}

void write_lines(Output& out, std::u16string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find(u"\r\n");
    out << text.substr(0, end) << "\n";
    text.remove_prefix(end == text.npos ? text.size() : end + 2);
  }
}

void write_items(JsonWriter& json, std::u16string_view entity) {
  json.key("items");
  json.begin_object();
  for (const Item& item : items_of(entity)) json.key(item.keyword).text(item.value);
  json.end();
}

void answer_entity(Session& session, const GetOptions& options, std::u16string_view entity) {
  if (!session.json) return write_lines(session.out, entity);
  JsonWriter json(session.out);
  json.begin_object();
  json.key("type").text(options.file.type);
  json.key("text").text(entity);
  write_items(json, entity);
  json.end();
}

void answer_item(Session& session, const std::string& keyword, std::u16string_view value) {
  if (!session.json) {
    session.out << value << "\n";
    return;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("item").text(keyword);
  json.key("value").text(value);
  json.end();
}

std::string sought(const GetOptions& options) {
  return options.id.empty() ? options.file.type : options.file.type + " " + options.id;
}

ExitCode not_found(Session& session, const std::string& what, const GetOptions& options) {
  session.say("there is no " + what + " in " + in_quotes(options.file.path));
  return ExitCode::not_found;
}

ExitCode run_get(Session& session, const GetOptions& options) {
  const String entity = working_on("cannot look for " + sought(options), options.file.path,
                                   [&] { return read(options); });
  if (entity.empty()) return not_found(session, sought(options), options);
  if (options.item.empty()) {
    answer_entity(session, options, entity);
    return ExitCode::done;
  }
  const auto value = item_of(entity, from_utf8(options.item));
  if (!value) return not_found(session, "item " + options.item + " of " + sought(options), options);
  answer_item(session, options.item, *value);
  return ExitCode::done;
}

}  // namespace

void add_get(Arguments app, Session& session) {
  auto [line, options] =
      add_command<GetOptions>(app, session, "get", "Show an entity, or one item of it",
                              "kwutils get plant.ent NODE B2\n"
                              "  kwutils get plant.ent NODE \"nm 'Outlet'\" --item id\n\n"
                              "ID is an identifier in any case, or an item and its value: nm "
                              "'Outlet'. Without ID the first\n"
                              "entity of the type is shown.",
                              &run_get);
  add_file(line, options.file);
  line.add_option("ID", options.id, "Identifier, or an item such as nm 'Outlet'");
  line.add_option("--item", options.item, "Show the value of this item alone").type_name("KEYWORD");
  line.add_option("--by", options.by, "ID is the value of this item").type_name("KEYWORD");
  line.add_option("--at", options.at, "Look from this byte of the file on, counted from 1")
      .type_name("POSITION");
  line.add_flag("--without-table", options.without_table,
                "Leave the table out; ID is then compared to the letter");
}

}  // namespace kw::tool
