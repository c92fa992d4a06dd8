#include "frame/collection_node.h"

#include <cstring>
#include <limits>
#include <new>
#include <utility>

#include "kwutils/error.h"

namespace kw::frame {

void CollectionNode::Delete::operator()(CollectionNode* node) const noexcept {
  node->~CollectionNode();
  ::operator delete(node);
}

CollectionNode::Owner CollectionNode::make(Variant&& item) {
  auto node = make(std::move(item), {});
  node->has_key = false;
  return node;
}

CollectionNode::Owner CollectionNode::make(Variant&& item, std::u16string_view key) {
  if (key.size() > std::numeric_limits<std::uint32_t>::max() / 4)
    throw Error(ErrorNumber::out_of_memory);
  void* memory = ::operator new(sizeof(CollectionNode) + key.size() * sizeof(char16_t));
  Owner node(new (memory) CollectionNode);
  node->item = std::move(item);
  node->key_length = static_cast<std::uint32_t>(key.size());
  node->has_key = true;
  if (!key.empty()) std::memcpy(static_cast<void*>(node.get() + 1), key.data(), key.size() * 2);
  return node;
}

}  // namespace kw::frame
