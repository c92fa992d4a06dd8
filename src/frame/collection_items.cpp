#include "frame/collection_items.h"

#include <utility>

#include "frame/collection_enumerator.h"
#include "kwutils/error.h"

namespace kw::frame {

CollectionItems::~CollectionItems() {
  for (std::size_t i = 0; i < order_.size(); ++i) CollectionNode::Delete()(order_.at(i));
}

CollectionNode* CollectionItems::find(std::u16string_view key) const noexcept {
  return keys_.find(key, CollectionKeys::hash(key));
}

CollectionNode& CollectionItems::named(std::u16string_view key) const {
  CollectionNode* node = find(key);
  if (node == nullptr) throw Error(ErrorNumber::invalid_argument);
  return *node;
}

CollectionNode& CollectionItems::at(std::int64_t position) const {
  if (position < 1 || position > static_cast<std::int64_t>(order_.size()))
    throw Error(ErrorNumber::subscript_out_of_range);
  return *order_.at(static_cast<std::size_t>(position - 1));
}

CollectionNode& CollectionItems::indexed(const Variant& index) const {
  const VARIANT& value = index.contents();
  const auto kind = static_cast<VARTYPE>(value.vt & ~kVtByRef);
  if (kind == kVtBstr) {
    String scratch;
    return value.vt == kVtBstr ? named(index.text(scratch)) : named(Variant::copy_of(value).text());
  }
  if (kind == kVtEmpty || kind == kVtNull || kind == kVtError)
    throw Error(ErrorNumber::type_mismatch);
  return at(index.to_int32());
}

void CollectionItems::enter_key(CollectionNode& node) {
  node.hash = CollectionKeys::hash(node.key());
  if (keys_.find(node.key(), node.hash) != nullptr) throw Error(ErrorNumber::key_exists);
  keys_.add(&node);
}

// Enters the node's key, then puts it into the order by insert().
template <class Insert>
void CollectionItems::enter(CollectionNode::Owner node, Insert&& insert) {
  if (node->has_key) enter_key(*node);
  try {
    insert();
  } catch (...) {
    if (node->has_key) keys_.remove(node.get());
    throw;
  }
  node.release();
}

void CollectionItems::add(CollectionNode::Owner node) {
  CollectionNode* const entry = node.get();
  enter(std::move(node), [&] { order_.append(entry); });
}

void CollectionItems::place(CollectionNode::Owner node, const Variant& before,
                            const Variant& after) {
  const auto given = [](const Variant& index) { return !index.is_missing() && !index.is_empty(); };
  if (given(before) && given(after)) throw Error(ErrorNumber::invalid_argument);
  CollectionNode* const next = given(before) ? &indexed(before) : nullptr;
  CollectionNode* const previous = given(after) ? &indexed(after) : nullptr;
  CollectionNode* const entry = node.get();
  enter(std::move(node), [&] {
    if (next != nullptr)
      order_.insert_before(next, entry);
    else if (previous != nullptr)
      order_.insert_after(previous, entry);
    else
      order_.append(entry);
  });
}

void CollectionItems::remove(CollectionNode& node) noexcept {
  if (node.has_key) keys_.remove(&node);
  order_.remove(&node);
  // Last, for the release of an object may lead back into this collection.
  CollectionNode::Delete()(&node);
}

Variant CollectionItems::Item(const Variant& Index) const { return indexed(Index).item.copy(); }

void CollectionItems::Add(const Variant& Item, const Variant& Key, const Variant& Before,
                          const Variant& After) {
  if (Key.is_missing() || Key.is_empty())
    return place(CollectionNode::make(Item.copy()), Before, After);
  const String key = Variant::copy_of(Key.contents()).text();
  place(CollectionNode::make(Item.copy(), key), Before, After);
}

std::int32_t CollectionItems::Count() const { return static_cast<std::int32_t>(order_.size()); }

void CollectionItems::Remove(const Variant& Index) { remove(indexed(Index)); }

Unknown CollectionItems::_NewEnum() { return enumerate(*this); }

}  // namespace kw::frame
