#include "frame/collection_keys.h"

#include "base/compare_text.h"
#include "frame/collection_node.h"

namespace kw::frame {

std::uint32_t CollectionKeys::hash(std::u16string_view key) noexcept {
  const std::uint64_t wide = hash_text(key);
  return static_cast<std::uint32_t>(wide ^ (wide >> 32));
}

CollectionNode* CollectionKeys::find(std::u16string_view key, std::uint32_t hash) const noexcept {
  if (places_.empty()) return nullptr;
  for (std::size_t i = hash & mask();; i = (i + 1) & mask()) {
    const Place& place = places_[i];
    if (place.node == nullptr) return nullptr;
    if (place.hash == hash && equal_text(place.node->key(), key)) return place.node;
  }
}

void CollectionKeys::put(Place place) noexcept {
  std::size_t i = place.hash & mask();
  while (places_[i].node != nullptr) i = (i + 1) & mask();
  places_[i] = place;
}

void CollectionKeys::grow() {
  std::vector<Place> old(places_.empty() ? 16 : places_.size() * 2);
  old.swap(places_);
  for (const Place& place : old)
    if (place.node != nullptr) put(place);
}

void CollectionKeys::add(CollectionNode* node) {
  if ((count_ + 1) * 3 > places_.size() * 2) grow();
  put({node, node->hash});
  ++count_;
}

void CollectionKeys::remove(const CollectionNode* node) noexcept {
  std::size_t gap = node->hash & mask();
  while (places_[gap].node != node) gap = (gap + 1) & mask();
  // An entry may move into the gap when its own place does not lie between the gap and itself.
  for (std::size_t i = (gap + 1) & mask(); places_[i].node != nullptr; i = (i + 1) & mask()) {
    const std::size_t home = places_[i].hash & mask();
    if (((i - home) & mask()) < ((i - gap) & mask())) continue;
    places_[gap] = places_[i];
    gap = i;
  }
  places_[gap] = {};
  --count_;
}

}  // namespace kw::frame
