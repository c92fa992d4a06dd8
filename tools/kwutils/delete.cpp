#include "base/case_map.h"
#include "base/unicode.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"
#include "tool/rewriting.h"
#include "tool/store_entities.h"
#include "tool/type_counts.h"

namespace kw::tool {
namespace {

struct DeleteOptions {
  EntityFile file;
  std::vector<std::string> ids;
  bool all = false;
  RewriteOptions rewrite;
};

struct Deleted {
  std::int64_t count = 0;
  std::vector<std::string> missing;
};

[[noreturn]] void refuse(const DeleteOptions& options, const std::string& id) {
  fail("cannot delete " + options.file.type + " " + id + " in " + in_quotes(options.file.path) +
       ": the entity does not begin with its identifier");
}

// Those of the identifiers that a look-up finds, as keys.
Collection still_there(const DeleteOptions& options, const std::vector<std::string>& ids) {
  const Collection entities = read_entities(options.file);
  const Collection found = Collection::create();
  for (const std::string& id : ids) {
    const String key = String::from_utf8(id);
    if (!entities.holds_text(key) || found.holds_text(key)) continue;
    if (!begins_with_identifier(text_under(entities, key))) refuse(options, id);
    found.add(Variant(key.copy()), key);
  }
  return found;
}

Deleted delete_ids(const DeleteOptions& options) {
  Deleted deleted;
  Collection found = still_there(options, options.ids);
  for (const std::string& id : options.ids)
    if (!found.holds_text(from_utf8(id))) deleted.missing.push_back(id);
  // A file may hold an identifier more than once: nobody is to find it afterwards.
  for (; found.count() != 0; found = still_there(options, options.ids)) {
    deleted.count += found.count();
    String name = options.file.name();
    clsFileReadWrite().DeleteEntitiesFromCollection(name, options.file.token(), found);
  }
  return deleted;
}

Deleted delete_all(const DeleteOptions& options) {
  Deleted deleted;
  deleted.count = count_type(from_utf8(options.file.path), from_utf8(options.file.type));
  String name = options.file.name();
  if (deleted.count != 0) clsFileReadWrite().DeleteEntity(name, options.file.token(), u"");
  return deleted;
}

void answer(Session& session, const DeleteOptions& options, const Deleted& deleted) {
  if (!session.json) {
    session.out << "deleted " << std::to_string(deleted.count) << " " << options.file.type << "\n";
    return;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("deleted").number(deleted.count);
  json.key("missing");
  json.begin_array();
  for (const std::string& id : deleted.missing) json.text(id);
  json.end();
  json.end();
}

ExitCode run_delete(Session& session, const DeleteOptions& options) {
  check_type(options.file.type);
  if (options.ids.empty() == !options.all)
    fail_usage("name the identifiers, or give --all for every entity of the type");
  Rewriting rewriting = rewrite_entities(session, options.rewrite, options.file.path);
  const Deleted deleted = working_on("cannot delete " + options.file.type, options.file.path, [&] {
    platform::files().open_input(options.file.name());  // a missing file is not to be made
    return options.all ? delete_all(options) : delete_ids(options);
  });
  if (options.rewrite.dry_run)
    rewriting.show_changes();
  else
    answer(session, options, deleted);
  for (const std::string& id : deleted.missing)
    session.say("there is no " + options.file.type + " " + id + " in " +
                in_quotes(options.file.path));
  return deleted.count == 0 || !deleted.missing.empty() ? ExitCode::not_found : ExitCode::done;
}

}  // namespace

void add_delete(Arguments app, Session& session) {
  auto [line, options] = add_command<DeleteOptions>(
      app, session, "delete", "Remove entities",
      "kwutils delete plant.ent NODE B1 B2\n"
      "  kwutils delete plant.ent NODE --all\n\n"
      "Every entity that bears one of the identifiers goes. What is not found is reported (exit\n"
      "status 1); the others are removed.",
      &run_delete);
  add_file(line, options.file);
  line.add_option("ID", options.ids, "Identifiers of the entities, in any case");
  line.add_flag("--all", options.all, "Remove every entity of the type");
  add_entity_rewrite_options(line, options.rewrite);
}

}  // namespace kw::tool
