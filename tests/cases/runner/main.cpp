// kwutils-cases: runs conformance cases against a built library.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "platform/library_file.h"
#include "run_files.h"

int main(int argc, char** argv) {
  CLI::App app("Runs conformance cases against a built library");
  app.allow_windows_style_options(false);  // "/" begins a path here, on every system
  std::string library_path;
  std::string filter;
  std::vector<std::string> paths;
  app.add_option("--library", library_path, "The library; else the one beside this program");
  app.add_option("--filter", filter, "Runs only the cases whose line holds this text");
  app.add_option("FILE", paths, "Files of cases, one JSON object a line")->required();
  CLI11_PARSE(app, argc, argv);
  const auto beside = std::filesystem::absolute(argv[0]).parent_path();
  if (library_path.empty()) library_path = (beside / kw::platform::kLibraryFile).string();
  try {
    const kw::cases::Library library(std::filesystem::absolute(library_path).string());
    kw::cases::Run run(library, filter, std::cout);
    for (const std::string& path : paths) run.run_file(path);
    return run.close();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kwutils-cases: %s\n", error.what());
    return 1;
  }
}
