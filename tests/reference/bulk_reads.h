// The readers of many entities, step by step.
#pragma once

#include <string>
#include <vector>

#include "reference/entity_lookup.h"
#include "reference/keyed_list.h"
#include "reference/parse_token.h"

namespace kw::reference {

inline std::vector<std::string> GetEntities(TextFile file, const std::string& token) {
  std::vector<std::string> buffer(1);
  scan_entities(file, token, Gathering::whole, true,
                [&](const std::string& text) { buffer.push_back(text); });
  return buffer;
}

inline std::vector<std::string> GetEntitiesWithoutTable(TextFile file, const std::string& token) {
  std::vector<std::string> buffer(1);
  scan_entities(file, token, Gathering::without_table, false,
                [&](const std::string& text) { buffer.push_back(text); });
  return buffer;
}

inline KeyedList ReadEntitiesIntoColl(TextFile file, const std::string& token, bool use_key) {
  KeyedList list;
  scan_entities(file, token, Gathering::whole, false, [&](const std::string& text) {
    if (text.empty()) return;
    if (use_key) {
      list.add(text, value_of(text, "id"));
    } else {
      list.add(text);
    }
  });
  return list;
}

inline std::string identifier_of(const std::string& text) {
  for (int i = 1;; ++i) {
    const std::string token = parse_token(text, i);
    if (token == "id") return parse_token(text, i + 1);
    if (token.empty()) return {};
  }
}

inline KeyedList GetEntitiesWithoutTableIntoColl(TextFile file, const std::string& token) {
  KeyedList list;
  scan_entities(file, token, Gathering::without_table, false, [&](const std::string& text) {
    const std::string id = identifier_of(text);
    if (list.find(id) == nullptr && !text.empty()) list.add(text, id);
  });
  return list;
}

inline KeyedList GetEntityIDsIntoColl(TextFile file, const std::string& token) {
  KeyedList list;
  scan_entities(file, token, Gathering::without_table, false, [&](const std::string& text) {
    const std::string id = identifier_of(text);
    if (!id.empty() && list.find(id) == nullptr) list.add(id, id);
  });
  return list;
}

inline KeyedList GetEntitiesWithCollection(TextFile file, const std::string& token,
                                           const KeyedList& wanted, Gathering gathering) {
  KeyedList list;
  scan_entities(file, token, gathering, false, [&](const std::string& text) {
    const std::string id = identifier_of(text);
    if (wanted.find(id) != nullptr && !text.empty()) list.add(text, id);
  });
  return list;
}

}  // namespace kw::reference
