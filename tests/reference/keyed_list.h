// A collection as plainly as it can be written.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reference/store_text.h"

namespace kw::reference {

struct KeyedItem {
  std::optional<std::string> key;
  std::string text;

  friend bool operator==(const KeyedItem&, const KeyedItem&) = default;
};

struct KeyedList {
  std::vector<KeyedItem> items;

  const KeyedItem* find(const std::string& key) const {
    for (const KeyedItem& item : items)
      if (item.key && same_text(*item.key, key)) return &item;
    return nullptr;
  }
  // False when the key is there.
  bool add(const std::string& text, const std::string& key) {
    if (find(key) != nullptr) return false;
    items.push_back({key, text});
    return true;
  }
  void add(const std::string& text) { items.push_back({std::nullopt, text}); }
  void remove(const std::string& key) { items.erase(items.begin() + (find(key) - items.data())); }
};

}  // namespace kw::reference
