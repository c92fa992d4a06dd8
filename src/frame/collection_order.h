// An ordered list whose members are found by position and removed in near constant time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kw::frame {

struct CollectionNode;

// Keeps pointers to nodes in blocks of bounded size. While nothing was removed or inserted in
// between, all blocks but the last are full and a position is found by division; afterwards by a
// tree of the blocks' counts. The list does not own the nodes.
class CollectionOrder {
 public:
  CollectionOrder();
  ~CollectionOrder();

  std::size_t size() const noexcept { return size_; }
  // `position` counts from 0 and lies within the list.
  CollectionNode* at(std::size_t position) const;
  void append(CollectionNode* node);
  // Puts `node` in front of `next`, a member of the list.
  void insert_before(CollectionNode* next, CollectionNode* node);
  // Puts `node` behind `previous`, a member of the list.
  void insert_after(CollectionNode* previous, CollectionNode* node);
  void remove(CollectionNode* node);

  struct Block;

 private:
  void insert(Block& block, std::size_t offset, CollectionNode* node);
  void split(Block& block);
  void rebuild_counts() const;
  void count_changed(std::size_t block_index, std::int32_t by);

  std::vector<std::unique_ptr<Block>> blocks_;
  std::size_t size_ = 0;
  bool uniform_ = true;                        // all blocks but the last are full
  mutable std::vector<std::uint32_t> counts_;  // a binary indexed tree; empty when out of date
};

}  // namespace kw::frame
