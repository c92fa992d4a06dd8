#include "tool/tool.h"

#include <algorithm>
#include <exception>
#include <sstream>

#include "tool/command.h"
#include "tool/command_line.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

void add_commands(CLI::App& app, Session& session) {
  app.name("kwutils");
  app.allow_windows_style_options(false);  // "/" begins a path or a text, on every system
  app.require_subcommand(1);
  app.footer(
      "'kwutils COMMAND --help' explains a command and shows an example.\n"
      "Exit status: 0 found or done, 1 not found, 2 wrong usage, 3 a file or its content failed.");
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

// The parser only says that a command is missing.
void check_command_name(const CLI::App& app, const std::vector<std::string>& words) {
  if (words.empty() || words.front().empty() || words.front().front() == '-') return;
  const auto named = [&](const CLI::App* command) { return command->check_name(words.front()); };
  if (app.get_subcommands(named).empty())
    fail_usage("there is no command " + in_quotes(words.front()) + "; see 'kwutils --help'");
}

void print(const std::string& text, std::FILE* to) { std::fwrite(text.data(), 1, text.size(), to); }

// Parses, and answers a request for help.
ExitCode parse(CLI::App& app, std::vector<std::string> words, const Session& session) {
  check_command_name(app, words);
  std::reverse(words.begin(), words.end());  // the parser takes them from the back
  try {
    app.parse(std::move(words));
    return session.run();
  } catch (const CLI::ParseError& error) {
    std::ostringstream answer;
    std::ostringstream complaint;
    const bool asked_for = app.exit(error, answer, complaint) == 0;
    print(answer.str(), session.out_file);
    if (!asked_for) fail_usage(complaint.str().substr(0, complaint.str().find('\n')));
    return ExitCode::done;
  }
}

}  // namespace

ExitCode run_tool(std::vector<std::string> words, std::FILE* out, std::FILE* err) {
  CLI::App app("Entity files and the classes of kwUtils at the command line");
  Session session(out, err);
  CommandLine line = split_command_line(std::move(words));
  session.call_arguments = std::move(line.call_arguments);
  add_commands(app, session);
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
