// One entry of a collection: a value and, where it has one, its key.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "frame/collection_order.h"
#include "kwutils/variant.h"

namespace kw::frame {

// The key's text lies behind the node, in the same allocation.
struct CollectionNode {
  Variant item;
  CollectionOrder::Block* block = nullptr;
  std::uint32_t hash = 0;
  std::uint32_t key_length = 0;
  bool has_key = false;

  std::u16string_view key() const noexcept {
    return {reinterpret_cast<const char16_t*>(this + 1), key_length};
  }

  struct Delete {
    void operator()(CollectionNode* node) const noexcept;
  };
  using Owner = std::unique_ptr<CollectionNode, Delete>;

  static Owner make(Variant&& item);
  static Owner make(Variant&& item, std::u16string_view key);
};

}  // namespace kw::frame
