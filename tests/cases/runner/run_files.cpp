#include "run_files.h"

#include <filesystem>
#include <fstream>
#include <ostream>

#include "fields.h"
#include "run_case.h"
#include "server/class_list.h"

namespace kw::cases {
namespace {

// The case's own name, or its place where it has none.
std::string id_of(const Json& one, const std::string& place) {
  const bool named = one.is_object() && one.contains("id") && one["id"].is_string();
  return named ? one["id"].get<std::string>() : place;
}

Outcome outcome_of(const Library& library, const Json& one) {
  try {
    return run_case(library, one);
  } catch (const std::exception& failure) {
    return {{std::string("the case cannot be run: ") + failure.what()}, {}};
  }
}

std::string method_of(std::string_view class_name, std::string_view method) {
  return std::string(class_name) + "." + std::string(method);
}

bool is_blank(const std::string& line) { return line.find_first_not_of(" \t\r") == line.npos; }

}  // namespace

void Run::fail(const std::string& id) {
  ++failed_;
  out_ << "FAILED " << id << "\n";
}

void Run::run_line(const std::string& line, const std::string& place) {
  Json one;
  try {
    one = parse_line(line);
    if (!one.is_object()) throw std::runtime_error("no JSON object");
  } catch (const std::exception& failure) {
    return fail(place + ": " + failure.what());
  }
  const Outcome outcome = outcome_of(library_, one);
  for (const std::string& key : outcome.unsupported) ++unsupported_[key];
  if (!outcome.unsupported.empty()) {
    ++skipped_;
  } else if (outcome.differences.empty()) {
    ++passed_;
    called_.insert(method_of(text_field(one, "class"), text_field(one, "method")));
  } else {
    fail(id_of(one, place));
    for (const std::string& difference : outcome.differences) out_ << "  " << difference << "\n";
    out_.flush();  // also when the next case should end the program
  }
}

void Run::run_file(const std::string& path) {
  std::ifstream input(path, std::ios::binary);
  if (!input || std::filesystem::is_directory(path)) return fail(path + ": cannot be read");
  int number = 0;
  for (std::string line; std::getline(input, line);) {
    ++number;
    if (!is_blank(line) && line.find(filter_) != line.npos)
      run_line(line, path + ":" + std::to_string(number));
  }
  if (input.bad()) fail(path + ": cannot be read to its end");
}

void Run::require_every_method() {
  std::size_t all = 0;
  for (const frame::ClassTable* table : server::classes())
    for (const frame::Method& method : table->description().methods) {
      const std::string name = method_of(table->description().name, method.name);
      ++all;
      if (!called_.contains(name)) fail(name + " is called by no case that passes");
    }
  out_ << called_.size() << " of " << all << " methods called "
       << (library_.route() == Route::slots ? "through their slots" : "late-bound") << "\n";
}

int Run::close() {
  for (const auto& [key, count] : unsupported_)
    out_ << count << " skipped: this route cannot supply '" << key << "'\n";
  out_ << passed_ << " passed, " << failed_ << " failed, " << skipped_ << " skipped\n";
  out_.flush();
  return failed_ == 0 ? 0 : 1;
}

}  // namespace kw::cases
