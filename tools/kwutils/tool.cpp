#include "tool/tool.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <optional>
#include <sstream>

#include "tool/command.h"
#include "tool/command_line.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

void describe(CLI::App& app) {
  app.name("kwutils");
  app.allow_windows_style_options(false);  // "/" begins a path or a text, on every system
  app.require_subcommand(1);
  app.set_version_flag("--version", KW_VERSION, "Show the version and exit");
  app.footer(
      "'kwutils COMMAND --help' explains a command and shows an example.\n"
      "Exit status: 0 found or done, 1 not found, 2 wrong usage, 3 a file or its content failed.");
}

void add_commands(Arguments app, Session& session) {
  add_list(app, session);
  add_get(app, session);
  add_ids(app, session);
  add_search(app, session);
  add_count(app, session);
  add_table(app, session);
  add_put(app, session);
  add_delete(app, session);
  add_new_id(app, session);
  add_check(app, session);
  add_import(app, session);
  add_export(app, session);
  add_ini(app, session);
  add_path(app, session);
  add_sort(app, session);
  add_user(app, session);
  add_call(app, session);
  add_registration(app, session);
}

// The words that name a command or group of commands.
std::string full_name(const CLI::App& command) {
  const CLI::App* parent = command.get_parent();
  return parent == nullptr ? command.get_name() : full_name(*parent) + " " + command.get_name();
}

[[noreturn]] void refuse(const CLI::App& command, const std::string& why) {
  fail_usage(why + "; see '" + full_name(command) + " --help'");
}

// Follows the words that name a command. The parser only says that one is missing.
const CLI::App& command_named(const CLI::App& app, const std::vector<std::string>& words) {
  const CLI::App* command = &app;
  for (const std::string& word : words) {
    const auto named = [&](const CLI::App* part) { return part->check_name(word); };
    if (word.starts_with("-") || command->get_subcommands({}).empty()) break;
    const auto found = command->get_subcommands(named);
    if (found.empty()) refuse(*command, "there is no command " + in_quotes(word));
    command = found.front();
  }
  return *command;
}

void print(const std::string& text, std::FILE* to) { std::fwrite(text.data(), 1, text.size(), to); }

std::string complaint_in(const std::string& text) {
  const std::string line = text.substr(0, text.find('\n'));
  return line == "A subcommand is required" ? "no command is given" : line;
}

// Parses, and answers a request for help.
ExitCode parse(CLI::App& app, std::vector<std::string> words, const Session& session) {
  const CLI::App& command = command_named(app, words);
  std::reverse(words.begin(), words.end());  // the parser takes them from the back
  try {
    app.parse(std::move(words));
    return session.run();
  } catch (const CLI::ParseError& error) {
    std::ostringstream answer;
    std::ostringstream complaint;
    const bool asked_for = app.exit(error, answer, complaint) == 0;
    print(answer.str(), session.out_file);
    if (!asked_for) refuse(command, complaint_in(complaint.str()));
    return ExitCode::done;
  }
}

}  // namespace

ExitCode run_tool(std::vector<std::string> words, std::FILE* out, std::FILE* err) {
  CLI::App app("Entity files and the classes of kwUtils at the command line");
  Session session(out, err);
  CommandLine line = split_command_line(std::move(words));
  WatchedFiles files(platform::files(), session.progress);
  std::optional<platform::ScopedFileService> scope;
  if (session.progress.watched()) scope.emplace(files);
  session.call_arguments = std::move(line.call_arguments);
  describe(app);
  add_commands(Arguments(&app), session);
  try {
    const ExitCode code = parse(app, std::move(line.words), session);
    session.out.flush();
    return code;
  } catch (const Failure& failure) {
    session.say(failure.message);
    return failure.code;
  } catch (const std::exception& failure) {
    session.say(failure.what());
    return ExitCode::failed;
  }
}

}  // namespace kw::tool
