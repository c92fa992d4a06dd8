#include "kwutils/collection.h"

#include <utility>

#include "frame/collection_items.h"
#include "frame/collection_object.h"
#include "kwutils/error.h"

namespace kw {
namespace {

// A collection of our own is used directly, any other through its members' names.
frame::CollectionItems* own(const Object& object) {
  if (!object) throw Error(ErrorNumber::object_not_set);
  return frame::own_items(object.pointer());
}

bool has_text(const Variant& item) {
  if (item.is_text()) return true;
  item.text();
  return true;
}

}  // namespace

Collection Collection::create() {
  return Collection(Object::attach(frame::collection_table().create()->interface_pointer()));
}

std::int32_t Collection::count() const {
  if (auto* items = own(object_)) return items->Count();
  return object_.get(u"Count").to_int32();
}

void Collection::add(Variant item) const {
  if (auto* items = own(object_)) return items->add(frame::CollectionNode::make(std::move(item)));
  object_.call(u"Add", {&item});
}

void Collection::add(Variant item, std::u16string_view key) const {
  if (auto* items = own(object_))
    return items->add(frame::CollectionNode::make(std::move(item), key));
  const Variant text(key);
  object_.call(u"Add", {&item, &text});
}

Variant Collection::item(std::int32_t position) const {
  if (auto* items = own(object_)) return items->at(position).item.copy();
  const Variant index(position);
  return object_.call(u"Item", {&index});
}

Variant Collection::item(std::u16string_view key) const {
  if (auto* items = own(object_)) return items->named(key).item.copy();
  const Variant index(key);
  return object_.call(u"Item", {&index});
}

void Collection::remove(std::u16string_view key) const {
  if (auto* items = own(object_)) return items->remove(items->named(key));
  const Variant index(key);
  object_.call(u"Remove", {&index});
}

void Collection::remove(std::int32_t position) const {
  if (auto* items = own(object_)) return items->remove(items->at(position));
  const Variant index(position);
  object_.call(u"Remove", {&index});
}

bool Collection::holds_text(std::u16string_view key) const noexcept {
  try {
    if (auto* items = own(object_)) {
      const auto* node = items->find(key);
      return node != nullptr && has_text(node->item);
    }
    return has_text(item(key));
  } catch (...) {
    return false;
  }
}

}  // namespace kw
