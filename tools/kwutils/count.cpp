#include "base/unicode.h"
#include "tool/assignment.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/type_counts.h"

namespace kw::tool {
namespace {

struct CountOptions {
  EntityFile file;
  std::string item;
  std::string id;
};

ExitCode answer(Session& session, std::int64_t count) {
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_object();
    json.key("count").number(count);
    json.end();
  } else {
    session.out << std::to_string(count) << "\n";
  }
  return count == 0 ? ExitCode::not_found : ExitCode::done;
}

// How often an item has the value, an identifier is used, and both stand in one entity.
struct Uses {
  std::int32_t both = 0;
  std::int32_t item = 0;
  std::int32_t id = 0;
};

Uses count_uses(const CountOptions& options) {
  // An item of no name is found nowhere.
  const Item item = options.item.empty() ? Item{u" ", u""} : item_in(options.item);
  const String id_keyword = options.id.empty() ? u" " : u"id";
  Uses uses;
  clsFileReadWrite().SearchKeyAndIDInFile(
      options.file.name(), options.file.token(), String(item.keyword), String(item.value),
      id_keyword, String::from_utf8(options.id), uses.both, uses.item, uses.id);
  return uses;
}

ExitCode answer_both(Session& session, const Uses& uses) {
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_object();
    json.key("both").number(std::int64_t{uses.both});
    json.key("item").number(std::int64_t{uses.item});
    json.key("id").number(std::int64_t{uses.id});
    json.end();
  } else {
    session.out << "both\t" << std::to_string(uses.both) << "\nitem\t" << std::to_string(uses.item)
                << "\nid\t" << std::to_string(uses.id) << "\n";
  }
  return uses.item == 0 && uses.id == 0 ? ExitCode::not_found : ExitCode::done;
}

ExitCode run_count(Session& session, const CountOptions& options) {
  return working_on("cannot count " + options.file.type, options.file.path, [&] {
    if (options.item.empty() && options.id.empty())
      return answer(session,
                    count_type(from_utf8(options.file.path), from_utf8(options.file.type)));
    const Uses uses = count_uses(options);
    if (!options.item.empty() && !options.id.empty()) return answer_both(session, uses);
    return answer(session, options.id.empty() ? uses.item : uses.id);
  });
}

}  // namespace

void add_count(Arguments app, Session& session) {
  auto [line, options] = add_command<CountOptions>(
      app, session, "count", "Count entities, or uses of an item's value",
      "kwutils count plant.ent NODE\n"
      "  kwutils count plant.ent NODE --item nm=Outlet --id B2\n\n"
      "Values are compared to the letter, outside tables. With --item and --id, the entities that\n"
      "hold both are counted, too.",
      &run_count);
  add_file(line, options.file);
  line.add_option("--item", options.item, "Count the uses of this value")
      .type_name("KEYWORD=VALUE");
  line.add_option("--id", options.id, "Count the uses of this identifier");
}

}  // namespace kw::tool
