// One order out of many that each tell a part of it.
#pragma once

#include <cstddef>
#include <set>
#include <utility>
#include <vector>

namespace kw::tool {

// Things are numbered from 0 in the order of their first appearance.
class OrderMerger {
 public:
  // `earlier` stands before `later`.
  void precede(std::size_t earlier, std::size_t later) { pairs_.emplace(earlier, later); }

  // All things below `count`, so that whatever precedes stands before; where that leaves a choice,
  // or contradicts itself, the one that appeared first comes first.
  std::vector<std::size_t> order(std::size_t count) const;

 private:
  std::set<std::pair<std::size_t, std::size_t>> pairs_;
};

}  // namespace kw::tool
