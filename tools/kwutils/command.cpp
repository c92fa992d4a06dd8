#include "tool/command.h"

namespace kw::tool {

CLI::App& add_group(CLI::App& app, const char* name, const char* help, const char* example) {
  CLI::App* group = app.add_subcommand(name, help);
  group->require_subcommand(1);
  group->footer(std::string("Example:\n  ") + example);
  return *group;
}

void add_file(CLI::App& line, EntityFile& file) {
  line.add_option("FILE", file.path, "The entity file")->required();
  line.add_option("TYPE", file.type, "Type of the entities, in any case")->required();
}

}  // namespace kw::tool
