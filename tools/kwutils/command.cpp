#include "tool/command.h"

#include <string>
#include <utility>

namespace kw::tool {
namespace {

std::string footer_of(const char* example) { return std::string("Example:\n  ") + example; }

}  // namespace

Arguments add_command(Arguments app, Session& session, const char* name, const char* help,
                      const char* example, std::function<ExitCode()> run) {
  const Arguments line = app.add_subcommand(name, help, footer_of(example));
  line.add_flag("--json", session.json, "Answer in JSON");
  line.callback([&session, run = std::move(run)] { session.run = run; });
  return line;
}

Arguments add_group(Arguments app, const char* name, const char* help, const char* example) {
  const Arguments group = app.add_subcommand(name, help, footer_of(example));
  group.require_subcommand();
  return group;
}

void add_file(Arguments line, EntityFile& file) {
  line.add_option("FILE", file.path, "The entity file").required();
  line.add_option("TYPE", file.type, "Type of the entities, in any case").required();
}

}  // namespace kw::tool
