// How a command joins the command line.
#pragma once

#include <functional>
#include <memory>

#include "tool/arguments.h"
#include "tool/entity_store.h"
#include "tool/session.h"

namespace kw::tool {

template <class Options>
struct Command {
  Arguments line;
  Options& options;
};

// Adds a command. `example` ends its help.
Arguments add_command(Arguments app, Session& session, const char* name, const char* help,
                      const char* example, std::function<ExitCode()> run);

// The same for a command that is run with the options read from the command line.
template <class Options>
Command<Options> add_command(Arguments app, Session& session, const char* name, const char* help,
                             const char* example, ExitCode (*run)(Session&, const Options&)) {
  const auto options = std::make_shared<Options>();
  const Arguments line = add_command(app, session, name, help, example,
                                     [&session, options, run] { return run(session, *options); });
  return {line, *options};
}

// Adds the name of a group of commands, which are added to it in their turn.
Arguments add_group(Arguments app, const char* name, const char* help, const char* example);

// The positional arguments FILE and TYPE.
void add_file(Arguments line, EntityFile& file);

void add_call(Arguments app, Session& session);
void add_check(Arguments app, Session& session);
void add_count(Arguments app, Session& session);
void add_delete(Arguments app, Session& session);
void add_export(Arguments app, Session& session);
void add_get(Arguments app, Session& session);
void add_ids(Arguments app, Session& session);
void add_import(Arguments app, Session& session);
void add_ini(Arguments app, Session& session);
void add_list(Arguments app, Session& session);
void add_new_id(Arguments app, Session& session);
void add_path(Arguments app, Session& session);
void add_put(Arguments app, Session& session);
void add_registration(Arguments app, Session& session);
void add_search(Arguments app, Session& session);
void add_sort(Arguments app, Session& session);
void add_table(Arguments app, Session& session);
void add_user(Arguments app, Session& session);

}  // namespace kw::tool
