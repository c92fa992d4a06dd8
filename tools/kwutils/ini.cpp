#include "tool/ini_options.h"

namespace kw::tool {

void add_ini(Arguments app, Session& session) {
  const Arguments ini =
      add_group(app, "ini", "Read and change INI files", "kwutils ini get plant.ini Pump Flow");
  add_ini_get(ini, session);
  add_ini_set(ini, session);
  add_ini_remove(ini, session);
  add_ini_list(ini, session);
}

}  // namespace kw::tool
