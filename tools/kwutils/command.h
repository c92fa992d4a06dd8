// How a command joins the command line.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "tool/entity_store.h"
#include "tool/session.h"

namespace kw::tool {

template <class Options>
struct Command {
  CLI::App& line;
  Options& options;
};

// Adds a command that is run with the options read from the command line. `example` ends its help.
template <class Options>
Command<Options> add_command(CLI::App& app, Session& session, const char* name, const char* help,
                             const char* example, ExitCode (*run)(Session&, const Options&)) {
  const auto options = std::make_shared<Options>();
  CLI::App* line = app.add_subcommand(name, help);
  line->footer(std::string("Example:\n  ") + example);
  line->add_flag("--json", session.json, "Answer in JSON");
  line->callback([&session, options, run] {
    session.run = [&session, options, run] { return run(session, *options); };
  });
  return {*line, *options};
}

// Adds the name of a group of commands, which are added to it in their turn.
CLI::App& add_group(CLI::App& app, const char* name, const char* help, const char* example);

// The positional arguments FILE and TYPE.
void add_file(CLI::App& line, EntityFile& file);

void add_call(CLI::App& app, Session& session);
void add_check(CLI::App& app, Session& session);
void add_count(CLI::App& app, Session& session);
void add_delete(CLI::App& app, Session& session);
void add_export(CLI::App& app, Session& session);
void add_get(CLI::App& app, Session& session);
void add_ids(CLI::App& app, Session& session);
void add_import(CLI::App& app, Session& session);
void add_ini(CLI::App& app, Session& session);
void add_list(CLI::App& app, Session& session);
void add_new_id(CLI::App& app, Session& session);
void add_path(CLI::App& app, Session& session);
void add_put(CLI::App& app, Session& session);
void add_registration(CLI::App& app, Session& session);
void add_search(CLI::App& app, Session& session);
void add_sort(CLI::App& app, Session& session);
void add_table(CLI::App& app, Session& session);
void add_user(CLI::App& app, Session& session);

}  // namespace kw::tool
