// Runs files of cases and reports what fails.
#pragma once

#include <iosfwd>
#include <map>
#include <set>
#include <string>

#include "library.h"

namespace kw::cases {

class Run {
 public:
  // Runs only the cases whose line holds `filter`.
  Run(const Library& library, std::string filter, std::ostream& out)
      : library_(library), filter_(std::move(filter)), out_(out) {}

  // A file that cannot be read, a line that is no case and a case that cannot be run are failures.
  void run_file(const std::string& path);
  // Fails the run for each method of the library that no case called and passed.
  void require_every_method();
  // Prints the totals; the exit status.
  int close();

 private:
  void run_line(const std::string& line, const std::string& place);
  void fail(const std::string& id);

  const Library& library_;
  std::string filter_;
  std::ostream& out_;
  int passed_ = 0;
  int failed_ = 0;
  int skipped_ = 0;
  std::set<std::string> called_;            // "class.method" of the cases that passed
  std::map<std::string, int> unsupported_;  // key -> cases that ask for it
};

}  // namespace kw::cases
