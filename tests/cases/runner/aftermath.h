// What the calls of a case left behind, and how that differs from what the case expects.
#pragma once

#include <string>
#include <vector>

#include "fake_host.h"
#include "method_call.h"
#include "work_directory.h"

namespace kw::cases {

struct Aftermath {
  std::vector<Called> calls;  // at least one
  std::vector<CallerVariable> variables;
  Files files;
  const FakeHost* host;
  bool repeated;  // the result is the list of the calls' results
};

// Empty when all is as expected, or as one of the alternatives says.
std::vector<std::string> aftermath_differences(const Aftermath& after, const Json& expect);

// "error 53 "File not found""
std::string failure_text(const Failure& failure);

}  // namespace kw::cases
