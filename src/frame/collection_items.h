// The library's own collection, as a native class. It is described like the others, but only the
// library creates it.
#pragma once

#include <cstdint>
#include <string_view>

#include "frame/collection_keys.h"
#include "frame/collection_node.h"
#include "frame/collection_order.h"
#include "kwutils/collection.h"
#include "kwutils/variant.h"

namespace kw::frame {

struct ObjectBase;

class CollectionItems {
 public:
  CollectionItems() = default;
  CollectionItems(const CollectionItems&) = delete;
  CollectionItems& operator=(const CollectionItems&) = delete;
  ~CollectionItems();

  // The members of the hosts' collection interface. An index is a position (any number) or a key
  // (a text). Errors: 5 no such key, 9 no such position, 457 key exists, 13 an index of another
  // kind.
  Variant Item(const Variant& Index) const;
  void Add(const Variant& Item, const Variant& Key, const Variant& Before, const Variant& After);
  std::int32_t Count() const;
  void Remove(const Variant& Index);
  Unknown _NewEnum();

  // The object that holds these items; enumerators keep it alive.
  void belong_to(ObjectBase& object) noexcept { object_ = &object; }
  ObjectBase& object() const noexcept { return *object_; }

  // The same for the library's own use, without variants for indices.
  void add(CollectionNode::Owner node);
  CollectionNode* find(std::u16string_view key) const noexcept;
  CollectionNode& at(std::int64_t position) const;
  CollectionNode& named(std::u16string_view key) const;
  void remove(CollectionNode& node) noexcept;
  std::size_t size() const noexcept { return order_.size(); }

 private:
  CollectionNode& indexed(const Variant& index) const;
  void enter_key(CollectionNode& node);
  template <class Insert>
  void enter(CollectionNode::Owner node, Insert&& insert);
  void place(CollectionNode::Owner node, const Variant& before, const Variant& after);

  ObjectBase* object_ = nullptr;
  CollectionOrder order_;
  CollectionKeys keys_;
};

}  // namespace kw::frame
