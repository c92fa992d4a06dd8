#include "frame/collection_object.h"

#include "frame/collection_items.h"
#include "frame/method.h"

namespace kw::frame {
namespace {

ClassDescription description() {
  ClassDescription result;
  result.name = "Collection";
  result.interface_id = {
      0xA4C46780, 0x499F, 0x101B, {0xBB, 0x78, 0x00, 0xAA, 0x00, 0x38, 0x3C, 0xBB}};
  result.version = {1, 0};
  result.help = "An ordered container of values, some of them under a key.";
  using C = CollectionItems;
  result.methods = {
      member<&C::Item>(0, "Item", {"Index"}, "The item at a position or under a key."),
      member<&C::Add>(1, "Add", {"Item", optional("Key"), optional("Before"), optional("After")},
                      "Adds an item, at the end unless a place is named."),
      member<&C::Count>(2, "Count", {}, "How many items there are."),
      member<&C::Remove>(3, "Remove", {"Index"}, "Removes the item at a position or under a key."),
      member<&C::_NewEnum>(kDispidNewEnum, "_NewEnum", {}, "Walks the items in order."),
  };
  return result;
}

ObjectBase* create(const ClassTable& table) {
  ObjectBase* object = ObjectOf<CollectionItems>::create(table);
  instance_of<CollectionItems>(*object).belong_to(*object);
  return object;
}

}  // namespace

const ClassTable& collection_table() {
  static const ClassTable table(description(), &create, &ObjectOf<CollectionItems>::destroy);
  return table;
}

CollectionItems* own_items(IDispatch* object) noexcept {
  if (object == nullptr) return nullptr;
  auto& base = *reinterpret_cast<ObjectBase*>(object);
  if (base.slots != collection_table().slots()) return nullptr;
  return &instance_of<CollectionItems>(base);
}

}  // namespace kw::frame
