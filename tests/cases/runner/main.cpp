// kwutils-cases: runs conformance cases against a built library.
#include <CLI/CLI.hpp>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "kwutils/error.h"
#include "library.h"
#include "platform/library_file.h"
#include "run_case.h"

namespace {

using kw::cases::Json;

struct Totals {
  int passed = 0;
  int failed = 0;
  int skipped = 0;
  std::map<std::string, int> unsupported;
};

void report(const std::string& id, const std::vector<std::string>& differences) {
  std::printf("FAILED %s\n", id.c_str());
  for (const std::string& difference : differences) std::printf("  %s\n", difference.c_str());
}

void run_one(const kw::cases::Library& library, const Json& one, Totals& totals) {
  kw::cases::Outcome outcome;
  try {
    outcome = kw::cases::run_case(library, one);
  } catch (const std::exception& failure) {
    outcome.differences = {std::string("the case cannot be run: ") + failure.what()};
  }
  for (const std::string& key : outcome.unsupported) ++totals.unsupported[key];
  if (!outcome.unsupported.empty()) {
    ++totals.skipped;
  } else if (outcome.differences.empty()) {
    ++totals.passed;
  } else {
    ++totals.failed;
    report(one.value("id", std::string("(no id)")), outcome.differences);
  }
}

bool wanted(const std::string& line, const std::string& filter) {
  return !line.empty() && line.find_first_not_of(" \t\r") != line.npos &&
         (filter.empty() || line.find(filter) != line.npos);
}

void run_file(const kw::cases::Library& library, const std::string& path, const std::string& filter,
              Totals& totals) {
  std::ifstream input(path, std::ios::binary);
  if (!input) {
    ++totals.failed;
    std::printf("FAILED %s: cannot be read\n", path.c_str());
    return;
  }
  int number = 0;
  for (std::string line; std::getline(input, line);) {
    ++number;
    if (!wanted(line, filter)) continue;
    try {
      run_one(library, kw::cases::parse_line(line), totals);
    } catch (const std::exception& failure) {
      ++totals.failed;
      std::printf("FAILED %s:%d: %s\n", path.c_str(), number, failure.what());
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Runs conformance cases against a built library");
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
    Totals totals;
    for (const std::string& path : paths) run_file(library, path, filter, totals);
    for (const auto& [key, count] : totals.unsupported)
      std::printf("%d skipped: this route cannot supply '%s'\n", count, key.c_str());
    std::printf("%d passed, %d failed, %d skipped\n", totals.passed, totals.failed, totals.skipped);
    return totals.failed == 0 ? 0 : 1;
  } catch (const kw::Error& error) {
    std::fprintf(stderr, "kwutils-cases: %s\n", error.what());
    return 1;
  }
}
