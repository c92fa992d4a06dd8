// One case: set the scene, make the call, compare all that is left.
#pragma once

#include <string>
#include <vector>

#include "json_text.h"
#include "library.h"

namespace kw::cases {

struct Outcome {
  std::vector<std::string> differences;  // none: passed
  std::vector<std::string> unsupported;  // keys of the environment that this route cannot supply
};

Outcome run_case(const Library& library, const Json& one);

}  // namespace kw::cases
