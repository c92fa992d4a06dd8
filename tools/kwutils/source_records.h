// An entity file with the places of everything in it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tool/finding.h"

namespace kw::tool {

// A record as readers see it, and where its first character stands.
struct SourceRecord {
  std::string text;
  std::size_t line;
  std::size_t column;
};

struct SourceText {
  std::vector<std::string_view> lines;  // of the file, without their ends
  std::vector<SourceRecord> records;
};

// Cuts the content of a file, which must outlive the result. Adds findings about lines and
// comments: lone CR and LF (the first of each kind stands for all), block comments that never
// close, a comment on the last line, bytes without a character in the code page, other encodings.
SourceText cut_source(std::string_view content, Findings& findings);

}  // namespace kw::tool
