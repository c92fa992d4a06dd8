#include "server/registration.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "base/unicode.h"
#include "platform/library_file.h"
#include "platform/registry.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

struct RegisterOptions {
  bool system = false;
  std::string library;
};

platform::RegistryScope scope_of(const RegisterOptions& options) {
  return options.system ? platform::RegistryScope::system : platform::RegistryScope::user;
}

// The system's own form of a path is not UTF-8 everywhere.
std::filesystem::path path_of(std::string_view text) { return from_utf8(text); }
std::string text_of(const std::filesystem::path& path) { return to_utf8(path.u16string()); }

// Beside the tool, or in the library folder of the place where both are installed.
std::filesystem::path default_library() {
  const std::filesystem::path tool = path_of(platform::own_module_path());
  const std::filesystem::path beside = tool.parent_path() / platform::kLibraryFile;
  std::error_code ignored;
  if (std::filesystem::exists(beside, ignored)) return beside;
  return (tool.parent_path() / KW_LIBRARY_FOLDER / platform::kLibraryFile).lexically_normal();
}

std::string library_file(const RegisterOptions& options) {
  const std::filesystem::path file =
      options.library.empty() ? default_library() : path_of(options.library);
  std::error_code failure;
  // A link stays one: it leads to the library after an upgrade, too.
  const std::filesystem::path path = std::filesystem::absolute(file, failure).lexically_normal();
  if (!failure && !std::filesystem::exists(path, failure) && !failure)
    failure = std::make_error_code(std::errc::no_such_file_or_directory);
  if (failure)
    fail("cannot register the library " + in_quotes(text_of(file)) + ": " + failure.message());
  return text_of(path);
}

void answer(Session& session, const char* done, const std::string& library) {
  if (!session.json) {
    session.out << done << (library.empty() ? "" : " ") << library << "\n";
    return;
  }
  JsonWriter json(session.out);
  json.begin_object();
  json.key("done").text(std::string_view(done));
  if (!library.empty()) json.key("library").text(std::string_view(library));
  json.end();
}

template <class Function>
void changing_registry(const char* what, Function&& function) {
  try {
    function();
  } catch (const Error& error) {
    fail(std::string("cannot ") + what + " the classes: " + reason(error, ""));
  }
}

ExitCode run_register(Session& session, const RegisterOptions& options) {
  const std::string library = library_file(options);
  changing_registry("register", [&] { server::register_library(library, scope_of(options)); });
  answer(session, "registered", library);
  return ExitCode::done;
}

ExitCode run_unregister(Session& session, const RegisterOptions& options) {
  changing_registry("unregister", [&] { server::unregister_library(scope_of(options)); });
  answer(session, "unregistered", "");
  return ExitCode::done;
}

}  // namespace

void add_registration(Arguments app, Session& session) {
  auto [entry, options] = add_command<RegisterOptions>(
      app, session, "register", "Enter the classes into the registry, so that programs find them",
      "kwutils register", &run_register);
  entry.add_flag("--system", options.system, "For every user instead of the current one");
  entry.add_option("--library", options.library, "The library; else the one beside the tool");
  auto [removal, removal_options] = add_command<RegisterOptions>(
      app, session, "unregister", "Remove the classes from the registry", "kwutils unregister",
      &run_unregister);
  removal.add_flag("--system", removal_options.system, "The registry of every user");
}

}  // namespace kw::tool
