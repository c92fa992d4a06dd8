// kwutils-cases: runs conformance cases against a built library.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "base/unicode.h"
#include "platform/command_line.h"
#include "platform/library_file.h"
#include "platform/registry.h"
#include "platform/terminal.h"
#include "run_files.h"

namespace {

struct Options {
  std::string library;
  std::string filter;
  bool by_slot = false;
  bool every_method = false;
  std::vector<std::string> files;
};

void describe(CLI::App& app, Options& options) {
  app.allow_windows_style_options(false);  // "/" begins a path here, on every system
  app.add_option("--library", options.library, "The library; else the one beside this program");
  app.add_option("--filter", options.filter, "Runs only the cases whose line holds this text");
  app.add_flag("--by-slot", options.by_slot, "Calls as a compiled client does, not by name");
  app.add_flag("--every-method", options.every_method,
               "Fails unless each method is called by a case that passes");
  app.add_option("FILE", options.files, "Files of cases, one JSON object a line")->required();
}

std::string library_path(const Options& options) {
  using Path = std::filesystem::path;
  if (!options.library.empty())
    return kw::to_utf8(absolute(Path(kw::from_utf8(options.library))).u16string());
  const Path program(kw::from_utf8(kw::platform::own_module_path()));
  return kw::to_utf8((program.parent_path() / kw::platform::kLibraryFile).u16string());
}

int run(const Options& options) {
  using kw::cases::Route;
  const kw::cases::Library library(library_path(options),
                                   options.by_slot ? Route::slots : Route::late_bound);
  kw::cases::Run run(library, options.filter, std::cout);
  for (const std::string& path : options.files) run.run_file(path);
  if (options.every_method) run.require_every_method();
  return run.close();
}

}  // namespace

int main(int argc, char** argv) {
  kw::platform::use_plain_streams();
  CLI::App app("Runs conformance cases against a built library");
  Options options;
  describe(app, options);
  std::vector<std::string> words = kw::platform::command_line(argc, argv);
  std::reverse(words.begin(), words.end());  // the parser takes them from the back
  try {
    app.parse(std::move(words));
    return run(options);
  } catch (const CLI::ParseError& error) {
    return app.exit(error);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kwutils-cases: %s\n", error.what());
    return 1;
  }
}
