// Identifiers that look-ups do not see.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "tool/source_blocks.h"

namespace kw::tool {

// The line of each identifier, in upper case, under the type.
using KnownIdentifiers = std::map<std::pair<std::string, std::u16string>, std::size_t>;

// Adds findings about the identifier of a block, and enters it among the known ones.
void check_identifier(const SourceBlock& block, KnownIdentifiers& known, Findings& findings);

}  // namespace kw::tool
