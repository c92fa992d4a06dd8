#include "frame/collection_order.h"

#include <algorithm>
#include <bit>

#include "frame/collection_node.h"

namespace kw::frame {

struct CollectionOrder::Block {
  static constexpr std::size_t kCapacity = 256;

  std::size_t index = 0;  // among the blocks
  std::size_t count = 0;
  CollectionNode* nodes[kCapacity];

  std::size_t offset_of(const CollectionNode* node) const {
    return static_cast<std::size_t>(std::find(nodes, nodes + count, node) - nodes);
  }
};

CollectionOrder::CollectionOrder() = default;
CollectionOrder::~CollectionOrder() = default;

void CollectionOrder::rebuild_counts() const {
  counts_.assign(blocks_.size() + 1, 0);
  for (std::size_t i = 1; i < counts_.size(); ++i) {
    counts_[i] += static_cast<std::uint32_t>(blocks_[i - 1]->count);
    const std::size_t parent = i + (i & (~i + 1));
    if (parent < counts_.size()) counts_[parent] += counts_[i];
  }
}

void CollectionOrder::count_changed(std::size_t block_index, std::int32_t by) {
  if (counts_.empty()) return;
  for (std::size_t i = block_index + 1; i < counts_.size(); i += i & (~i + 1))
    counts_[i] += static_cast<std::uint32_t>(by);
}

CollectionNode* CollectionOrder::at(std::size_t position) const {
  if (uniform_) return blocks_[position / Block::kCapacity]->nodes[position % Block::kCapacity];
  if (counts_.empty()) rebuild_counts();
  std::size_t block = 0;
  for (std::size_t step = std::bit_floor(counts_.size() - 1); step != 0; step /= 2) {
    if (block + step >= counts_.size() || counts_[block + step] > position) continue;
    block += step;
    position -= counts_[block];
  }
  return blocks_[block]->nodes[position];
}

void CollectionOrder::append(CollectionNode* node) {
  if (blocks_.empty() || blocks_.back()->count == Block::kCapacity) {
    blocks_.push_back(std::make_unique<Block>());
    blocks_.back()->index = blocks_.size() - 1;
    counts_.clear();
  }
  Block& last = *blocks_.back();
  last.nodes[last.count++] = node;
  node->block = &last;
  ++size_;
  count_changed(last.index, 1);
}

void CollectionOrder::split(Block& block) {
  auto second = std::make_unique<Block>();
  const std::size_t half = Block::kCapacity / 2;
  std::copy(block.nodes + half, block.nodes + block.count, second->nodes);
  second->count = block.count - half;
  block.count = half;
  for (std::size_t i = 0; i < second->count; ++i) second->nodes[i]->block = second.get();
  const auto place = static_cast<std::ptrdiff_t>(block.index + 1);
  blocks_.insert(blocks_.begin() + place, std::move(second));
  for (std::size_t i = block.index + 1; i < blocks_.size(); ++i) blocks_[i]->index = i;
  counts_.clear();
}

void CollectionOrder::insert(Block& of_block, std::size_t offset, CollectionNode* node) {
  Block* block = &of_block;
  uniform_ = false;
  if (block->count == Block::kCapacity) {
    split(*block);
    if (offset > block->count) {
      offset -= block->count;
      block = blocks_[block->index + 1].get();
    }
  }
  std::copy_backward(block->nodes + offset, block->nodes + block->count,
                     block->nodes + block->count + 1);
  block->nodes[offset] = node;
  node->block = block;
  ++block->count;
  ++size_;
  count_changed(block->index, 1);
}

void CollectionOrder::insert_before(CollectionNode* next, CollectionNode* node) {
  insert(*next->block, next->block->offset_of(next), node);
}

void CollectionOrder::insert_after(CollectionNode* previous, CollectionNode* node) {
  insert(*previous->block, previous->block->offset_of(previous) + 1, node);
}

void CollectionOrder::remove(CollectionNode* node) {
  Block& block = *node->block;
  const std::size_t offset = block.offset_of(node);
  std::copy(block.nodes + offset + 1, block.nodes + block.count, block.nodes + offset);
  --block.count;
  --size_;
  count_changed(block.index, -1);
  if (&block != blocks_.back().get()) uniform_ = false;
  if (size_ != 0) return;
  blocks_.clear();
  counts_.clear();
  uniform_ = true;
}

}  // namespace kw::frame
