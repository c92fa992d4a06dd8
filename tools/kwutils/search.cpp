#include <optional>

#include "base/case_map.h"
#include "base/unicode.h"
#include "parse/text_view.h"
#include "platform/files.h"
#include "tool/assignment.h"
#include "tool/collection_entries.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

struct SearchOptions {
  EntityFile file;
  std::string where;
  std::vector<std::string> items;
  std::string id_item;
  std::string name_item;
  std::string part;
  bool seek = false;
};

// One line of the answer.
struct Found {
  std::optional<std::u16string> id;  // nothing where the entity has none
  std::u16string name;
  std::vector<std::u16string> items;
  std::optional<std::int32_t> position;
};

// The lists of one search. Names and further items are parallel; identifiers are the keys of those
// that have one.
class Search {
 public:
  explicit Search(const SearchOptions& options)
      : options_(options),
        type_(upper(parse::trim(std::u16string_view(from_utf8(options.file.type))))),
        id_item_(from_utf8(options.id_item)),
        name_item_(from_utf8(options.name_item)),
        where_(options.where.empty() ? u"" : written_item(options.where)) {}

  std::vector<Found> run() {
    if (!options_.part.empty()) {
      list_parts();
      return entries();
    }
    std::vector<Found> found;
    for (std::size_t first = 0; first == 0 || first < options_.items.size(); first += 2) {
      list_items(first);
      if (first == 0) found = entries();
      add_items(found, third_);
      if (first + 1 < options_.items.size()) add_items(found, fourth_);
    }
    if (options_.seek) add_positions(found);
    return found;
  }

 private:
  // Lists the identifiers, names and the two items from `first` on.
  void list_items(std::size_t first) {
    Variant third_token = token(first);
    Variant fourth_token = token(first + 1);
    third_ = list_for(third_token);
    fourth_ = list_for(fourth_token);
    clsFileReadWrite().List2EntitieswithSearch(options_.file.name(), type_, id_item_, where_, ids_,
                                               name_item_, names_, true, false, third_token, third_,
                                               fourth_token, fourth_);
  }

  void list_parts() {
    clsFileReadWrite().SubList2EntitieswithSearch(options_.file.name(), type_,
                                                  String(upper(from_utf8(options_.part))), id_item_,
                                                  where_, ids_, name_item_, names_, true, false);
  }

  Variant token(std::size_t item) const {
    if (item >= options_.items.size()) return Variant::missing();
    return Variant(String::from_utf8(options_.items[item]));
  }

  static Variant list_for(const Variant& token) {
    return token.is_missing() ? Variant::missing() : Variant(Object());
  }

  std::vector<Found> entries() const {
    std::vector<Found> found;
    for_each_entry(names_, [&](const CollectionEntry& entry) {
      found.push_back({entry.key, std::u16string(entry.text), {}, std::nullopt});
    });
    return found;
  }

  static void add_items(std::vector<Found>& found, const Variant& list) {
    if (list.is_missing()) return;
    std::size_t at = 0;
    for_each_text(Collection(list.to_object()),
                  [&](std::u16string_view text) { found[at++].items.emplace_back(text); });
  }

  void add_positions(std::vector<Found>& found) {
    Collection positions;
    clsFileReadWrite().List2EntitieswithSearchandSeek(options_.file.name(), type_, id_item_, where_,
                                                      ids_, name_item_, names_, true, false, true,
                                                      positions);
    for (Found& entity : found)
      if (entity.id && positions.holds_text(*entity.id))
        entity.position = positions.item(*entity.id).to_int32();
  }

  const SearchOptions& options_;
  String type_;
  String id_item_;
  String name_item_;
  String where_;
  Collection ids_;
  Collection names_;
  Variant third_;
  Variant fourth_;
};

void write_text(Output& out, const SearchOptions& options, const Found& entity) {
  if (options.seek)
    out << (entity.position ? std::to_string(*entity.position) : std::string("-")) << "\t";
  out << (entity.id ? std::u16string_view(*entity.id) : u"") << "\t" << entity.name;
  for (const std::u16string& item : entity.items) out << "\t" << item;
  out << "\n";
}

void write_json(JsonWriter& json, const SearchOptions& options, const Found& entity) {
  json.begin_object();
  if (entity.id) json.key("id").text(*entity.id);
  json.key("name").text(entity.name);
  for (std::size_t i = 0; i < entity.items.size(); ++i)
    json.key(options.items[i]).text(entity.items[i]);
  if (entity.position) json.key("position").number(std::int64_t{*entity.position});
  json.end();
}

void check_options(const SearchOptions& options) {
  check_type(options.file.type);
  if (!options.part.empty() && (options.seek || !options.items.empty()))
    fail_usage("--part goes with neither --seek nor --item");
}

ExitCode run_search(Session& session, const SearchOptions& options) {
  check_options(options);
  const std::vector<Found> found =
      working_on("cannot search " + options.file.type, options.file.path, [&] {
        platform::files().open_input(options.file.name());  // a search finds nothing in no file
        return Search(options).run();
      });
  JsonWriter json(session.out);
  if (session.json) json.begin_lines();
  for (const Found& entity : found) {
    if (session.json)
      write_json(json, options, entity);
    else
      write_text(session.out, options, entity);
  }
  if (session.json) json.end();
  return found.empty() ? ExitCode::not_found : ExitCode::done;
}

}  // namespace

void add_search(Arguments app, Session& session) {
  auto [line, options] = add_command<SearchOptions>(
      app, session, "search", "List identifiers, names and further items of entities",
      "kwutils search plant.ent NODE --where nm=Outlet --item ln --seek\n\n"
      "Only the first line of each entity is looked at. Identifiers that begin with tmp are left "
      "out.\n"
      "The position of --seek is what 'kwutils get --at' takes.",
      &run_search);
  add_file(line, options.file);
  line.add_option("--where", options.where, "Only entities with this value, to the letter")
      .type_name("KEYWORD=VALUE");
  line.add_option("--item", options.items, "Show this item, too; may be repeated")
      .type_name("KEYWORD")
      .single();
  line.add_option("--id-item", options.id_item, "The item of the identifiers; else id")
      .type_name("KEYWORD");
  line.add_option("--name-item", options.name_item, "The item of the names; else nm")
      .type_name("KEYWORD");
  line.add_option("--part", options.part, "List the parts of this type inside the entities")
      .type_name("TYPE");
  line.add_flag("--seek", options.seek, "Show where in the file each entity begins, from 1");
}

}  // namespace kw::tool
