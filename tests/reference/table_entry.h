// The rows of a table, step by step.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reference/entity_lookup.h"

namespace kw::reference {

// An array of texts from element 1 on, as a caller sees it.
using Rows = std::vector<std::string>;

struct TableEntry {
  int result = 0;
  Rows table;
};

inline void for_each_row(TextFile& file, std::string record, const TypeWords& type, auto row) {
  bool in_table = false;
  for (;;) {
    if (record.empty()) record = GetRecord(file);
    if (holds(record, "TBLE")) {
      in_table = true;
      record = mid(record, in_str<char>(record, "TBLE") + 4);
    }
    if (in_table && !record.empty()) {
      if (!holds(record, "tble")) {
        row(record + "\r\n");
      } else {
        const std::string before = left(record, in_str<char>(record, "tble") - 1);
        if (!trim(before).empty()) row(before + "\r\n");
        in_table = false;
      }
    }
    if (right(record, type.n) == type.lower) return;
    record.clear();
    if (file.at_end()) return;
  }
}

inline TableEntry GetTableEntry(TextFile file, const std::string& token, const std::string& id,
                                std::size_t buffer_size) {
  TableEntry entry;
  entry.table.resize(buffer_size);
  const std::optional<std::string> record = find_candidate(file, token, id);
  if (!record) return entry;
  std::size_t count = 0;
  for_each_row(file, *record, TypeWords(token), [&](const std::string& row) {
    if (++count > entry.table.size()) entry.table.resize(entry.table.size() + buffer_size);
    entry.table[count - 1] = row;
  });
  if (entry.table.size() > count) entry.table.resize(count);
  entry.result = static_cast<int>(count);
  return entry;
}

struct SpilledTableEntry : TableEntry {
  std::optional<std::string> spill;  // the content of the file, where it was made
};

inline SpilledTableEntry GetTableEntryUsingTempFile(TextFile file, const std::string& token,
                                                    const std::string& id,
                                                    std::size_t buffer_size) {
  SpilledTableEntry entry;
  entry.table.resize(buffer_size);
  std::size_t count = 0;
  const auto write_rows = [&] {
    for (std::size_t i = 0; i < count; ++i) *entry.spill += entry.table[i];
    entry.result += static_cast<int>(count);
  };
  if (const std::optional<std::string> record = find_candidate(file, token, id)) {
    for_each_row(file, *record, TypeWords(token), [&](const std::string& row) {
      if (++count > entry.table.size()) {
        --count;
        if (!entry.spill) entry.spill = "";
        write_rows();
        entry.table.assign(buffer_size, "");
        count = 1;
      }
      entry.table[count - 1] = row;
    });
  }
  if (entry.spill) {
    write_rows();
    entry.table.assign(1, "");
  } else {
    if (count >= 1 && count < entry.table.size()) entry.table.resize(count);
    entry.result += static_cast<int>(count);
  }
  return entry;
}

}  // namespace kw::reference
