// What is wrong inside the blocks of a file.
#pragma once

#include <vector>

#include "tool/progress.h"
#include "tool/source_blocks.h"

namespace kw::tool {

// Adds findings about quotes and tables that never close, identifiers that look-ups do not see or
// that an earlier entity of the type has, items behind an odd apostrophe.
void check_entities(const std::vector<SourceBlock>& blocks, Findings& findings,
                    ProgressBar* progress = nullptr);

}  // namespace kw::tool
