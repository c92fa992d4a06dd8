// Which lines two texts have in common.
#pragma once

#include <cstdint>
#include <vector>

namespace kw::tool {

// Lines are given as numbers; equal lines have equal numbers. For each line of either text, whether
// it is not in the other one. Lines that occur once in both are matched first, what lies between
// them in the same way. Stretches of very many lines without such anchors count as different.
struct LineMatch {
  std::vector<bool> removed;
  std::vector<bool> added;
};

LineMatch match_lines(const std::vector<std::uint32_t>& old_lines,
                      const std::vector<std::uint32_t>& new_lines);

}  // namespace kw::tool
