// Quotes in the records of a block.
#pragma once

#include "tool/source_blocks.h"

namespace kw::tool {

// Adds findings about quotes that never close, and about apostrophes of the first line that hide
// the items behind them.
void check_quotes(const SourceBlock& block, Findings& findings);

}  // namespace kw::tool
