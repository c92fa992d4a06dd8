// The writers, step by step: from the old content of a file to the new one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reference/bulk_reads.h"

namespace kw::reference {

using Content = std::optional<std::string>;  // of a file that may be missing

inline std::string key_of(const std::string& id, const TypeWords& type, bool literal_allowed) {
  if (id.empty()) return type.upper;
  if (literal_allowed && holds(id, "'")) return id;
  return " id '" + id + "' ";
}

// `new_record`: the text of the record to write, with its line end; nothing for none.
inline std::string rewrite_one(const Content& old, const TypeWords& type, const std::string& key,
                               std::optional<std::string> new_record) {
  std::string out;
  TextFile file{old.value_or("")};
  bool first_line = true;
  while (!file.at_end()) {
    std::string line = GetRecordKeepComments(file, out);
    if (holds(line, key)) {
      const std::string first = parse_token(line, 1);
      if (first == type.upper) {
        while (!file.at_end() && right(line, type.n) != type.lower)
          line = GetRecordKeepComments(file, out);
        if (new_record) out += *new_record;
        new_record.reset();
        line.clear();
      } else if (!(first_line && first.size() == 6)) {
        const std::string end = lower_case(first);
        while (right(line, first.size()) != end && !file.at_end())
          line += "\r\n" + GetRecordKeepComments(file, out);
      }
    }
    if (!line.empty()) out += line + "\r\n";
    first_line = false;
  }
  if (new_record) out += *new_record;
  return out;
}

inline std::string WriteEntity(const Content& old, const std::string& token, const std::string& id,
                               const std::string& entity) {
  const TypeWords type(token);
  std::optional<std::string> record;
  if (!trim(entity).empty()) record = type.upper + " " + entity + " " + type.lower + "\r\n";
  return rewrite_one(old, type, key_of(id, type, true), record);
}

// `rows`: elements 1 to the upper bound.
inline std::string WriteEntitywithTable(const Content& old, const std::string& token,
                                        const std::string& id, const std::string& entity,
                                        const std::vector<std::string>& rows) {
  const TypeWords type(token);
  std::optional<std::string> record;
  const std::size_t p = in_str<char>(entity, "??");
  if (!trim(entity).empty()) {
    record = type.upper + " " + (p == 0 ? entity : left(entity, p - 1));
    if (p != 0) {
      for (const std::string& row : rows) *record += row;
      *record += mid(entity, p + 2);
    }
    *record += " " + type.lower + "\r\n";
  }
  return rewrite_one(old, type, key_of(id, type, false), record);
}

// The rows that a stored table gives, each with its line end, its comments among them.
inline std::vector<std::string> stored_rows(TextFile file) {
  std::string out;
  while (!file.at_end()) {
    const std::string line = GetRecordKeepComments(file, out);
    out += line + "\r\n";
  }
  return {out};
}

// The records of many entities left out or replaced: replace(key) gives what is written in the
// place of the entity that is removed from `keys`.
template <class Replace>
std::string rewrite_many(const Content& old, const TypeWords& type, KeyedList& keys,
                         Replace&& replace) {
  std::string out;
  TextFile file{old.value_or("")};
  bool first_line = true;
  while (!file.at_end()) {
    std::string line = GetRecordKeepComments(file, out);
    const std::string first = parse_token(line, 1);
    const auto gather = [&](const std::string& end) {
      while (!file.at_end() && right(line, end.size()) != end)
        line += "\r\n" + GetRecordKeepComments(file, out);
    };
    if (first != type.upper) {
      if (!(first_line && first.size() == 6)) gather(lower_case(first));
    } else {
      std::string candidate = parse_token(line, 2);
      if (candidate == "id") candidate = parse_token(line, 3);
      gather(type.lower);
      if (keys.find(candidate) != nullptr) {
        line = replace(*keys.find(candidate));
        keys.remove(candidate);
      }
    }
    if (!line.empty()) out += line + "\r\n";
    first_line = false;
  }
  return out;
}

inline std::string DeleteEntitiesFromCollection(const Content& old, const std::string& token,
                                                KeyedList& ids) {
  return rewrite_many(old, TypeWords(token), ids, [](const KeyedItem&) { return std::string(); });
}

inline std::string WriteEntitiesFromCollection(const Content& old, const std::string& token,
                                               KeyedList& entities) {
  const TypeWords type(token);
  const auto line = [&](const KeyedItem& item) {
    return type.upper + " " + item.text + " " + type.lower;
  };
  std::string out = rewrite_many(old, type, entities, line);
  for (const KeyedItem& item : entities.items) out += line(item) + "\r\n";
  return out;
}

}  // namespace kw::reference
