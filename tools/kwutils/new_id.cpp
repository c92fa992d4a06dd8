#include "base/unicode.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

struct NewIdOptions {
  EntityFile file;
  std::string proposed;
};

ExitCode run_new_id(Session& session, const NewIdOptions& options) {
  const String proposed = String::from_utf8(options.proposed);
  const String id =
      working_on("cannot choose an identifier of " + options.file.type, options.file.path, [&] {
        String token = options.file.token();
        return clsFileReadWrite().CheckOrCreateNewID(options.file.name(), token, proposed);
      });
  if (!session.json) {
    session.out << id.view() << "\n";
    return ExitCode::done;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("id").text(id.view());
  json.end();
  return ExitCode::done;
}

}  // namespace

void add_new_id(Arguments app, Session& session) {
  auto [line, options] = add_command<NewIdOptions>(
      app, session, "new-id", "Choose an identifier that no entity of a type has",
      "kwutils new-id plant.ent NODE\n"
      "  kwutils new-id plant.ent NODE B7\n\n"
      "PROPOSED is answered where it is free; else the largest number among the identifiers, plus\n"
      "one; 1 where there is none. Nothing is written.",
      &run_new_id);
  add_file(line, options.file);
  line.add_option("PROPOSED", options.proposed, "The identifier that is wanted");
}

}  // namespace kw::tool
