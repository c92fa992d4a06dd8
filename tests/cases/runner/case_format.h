// What a case may hold. A case that holds anything else is never run: what it means is not known.
#pragma once

#include <string>
#include <vector>

#include "json_text.h"

namespace kw::cases {

// Throws Malformed, naming the field, unless the case is as the format wants it. The typed values
// of its arguments are checked when they are made.
void check_case(const Json& one);

// How often a case calls its method; a case that says so gets a list of results.
int repetitions(const Json& one);
bool is_repeated(const Json& one);

// The keys of an environment that this route into the library cannot supply.
std::vector<std::string> unsupported_keys(const Json& env);

}  // namespace kw::cases
