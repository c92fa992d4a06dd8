#include "tool/command.h"

namespace kw::tool {

void add_file(CLI::App& line, EntityFile& file) {
  line.add_option("FILE", file.path, "The entity file")->required();
  line.add_option("TYPE", file.type, "Type of the entities, in any case")->required();
}

}  // namespace kw::tool
