// What would surprise a reader of an entity file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kw::tool {

struct Finding {
  std::size_t line;    // from 1
  std::size_t column;  // from 1, in characters
  const char* kind;    // a word for programs
  std::string message;
};

using Findings = std::vector<Finding>;

}  // namespace kw::tool
