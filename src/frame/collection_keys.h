// Finds the entry of a key, without regard to case, in near constant time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kw::frame {

struct CollectionNode;

// An open-addressed hash table of nodes that it does not own. Removal closes the gap, so that no
// marks of removed entries slow later look-ups.
class CollectionKeys {
 public:
  static std::uint32_t hash(std::u16string_view key) noexcept;

  // The entry of a key with its hash, or null.
  CollectionNode* find(std::u16string_view key, std::uint32_t hash) const noexcept;
  // Adds an entry whose key is not there yet; node->hash is set.
  void add(CollectionNode* node);
  void remove(const CollectionNode* node) noexcept;

 private:
  struct Place {
    CollectionNode* node = nullptr;
    std::uint32_t hash = 0;
  };
  void grow();
  void put(Place place) noexcept;
  std::size_t mask() const noexcept { return places_.size() - 1; }

  std::vector<Place> places_;
  std::size_t count_ = 0;
};

}  // namespace kw::frame
