// Identifiers and values in use, step by step.
#pragma once

#include <cmath>
#include <optional>
#include <string>

#include "base/numeric_text.h"
#include "reference/bulk_reads.h"
#include "reference/parse_record.h"

namespace kw::reference {

inline std::string CheckOrCreateNewID(const TextFile& file, const std::string& token,
                                      const std::optional<std::string>& search_id) {
  const KeyedList ids = GetEntityIDsIntoColl(file, upper_case(token));
  if (search_id && !trim(*search_id).empty()) {
    if (ids.items.empty()) return *search_id;
    if (ids.find(*search_id) == nullptr) return *search_id;
  }
  int largest = -999;
  for (const KeyedItem& item : ids.items) {
    const std::optional<double> number = parse_number(item.text);
    if (number && to_int32(*number) > largest) largest = to_int32(*number);
  }
  return largest == -999 ? "1" : std::to_string(largest + 1);
}

struct ValueCount {
  int record_present = 0, key_used = 0, id_used = 0;

  friend bool operator==(const ValueCount&, const ValueCount&) = default;
};

inline ValueCount SearchKeyAndIDInFile(TextFile file, const std::string& token,
                                       const std::string& search_key,
                                       const std::string& search_value, const std::string& id_key,
                                       const std::string& id_value) {
  ValueCount counts;
  scan_entities(file, token, Gathering::without_table, false, [&](std::string text) {
    bool key_met = false;
    bool id_met = false;
    while (!trim(text).empty()) {
      std::string line = parse_record(text);
      while (!line.empty()) {
        const std::string word = take_word(line);
        if (word == id_key) {
          if (take_word(line) == id_value) {
            id_met = true;
            ++counts.id_used;
          }
        } else if (word == search_key) {
          if (take_word(line) == search_value) {
            key_met = true;
            ++counts.key_used;
          }
        }
      }
    }
    if (key_met && id_met) ++counts.record_present;
  });
  return counts;
}

}  // namespace kw::reference
