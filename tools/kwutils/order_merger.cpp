#include "tool/order_merger.h"

namespace kw::tool {

std::vector<std::size_t> OrderMerger::order(std::size_t count) const {
  std::vector<std::size_t> waiting_for(count);
  for (const auto& [earlier, later] : pairs_) ++waiting_for[later];
  std::set<std::size_t> ready;
  std::set<std::size_t> left;
  for (std::size_t thing = 0; thing < count; ++thing)
    (waiting_for[thing] == 0 ? ready : left).insert(thing);
  std::vector<std::size_t> result;
  while (result.size() < count) {
    std::set<std::size_t>& from = ready.empty() ? left : ready;
    const std::size_t next = *from.begin();
    from.erase(from.begin());
    result.push_back(next);
    for (auto pair = pairs_.lower_bound({next, 0}); pair != pairs_.end() && pair->first == next;
         ++pair)
      if (--waiting_for[pair->second] == 0 && left.erase(pair->second) != 0)
        ready.insert(pair->second);
  }
  return result;
}

}  // namespace kw::tool
