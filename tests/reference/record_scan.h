// The steps that the readers of the store share.
#pragma once

#include <string>

#include "reference/records.h"
#include "reference/store_text.h"

namespace kw::reference {

// The words of a type.
struct TypeWords {
  explicit TypeWords(const std::string& token)
      : upper(upper_case(trim(token))), lower(lower_case(upper)), n(upper.size()) {}

  std::string upper;
  std::string lower;
  std::size_t n;
};

// Reads on to the record that ends in the word's lower case.
inline void skip_foreign(TextFile& file, std::string record, const std::string& word) {
  const std::string end = lower_case(word);
  while (right(record, word.size()) != end && !file.at_end()) record = GetRecord(file);
}

// The records of an entity joined; `record`: the rest of the opening one.
inline std::string gather_whole(TextFile& file, std::string record, const TypeWords& type) {
  std::string text;
  for (;;) {
    if (record.empty()) record = GetRecord(file);
    if (right(record, type.n) == type.lower) return text + without_last(record, type.n);
    text += record + "\r\n";
    record.clear();
    if (file.at_end()) return text;
  }
}

// The same without what stands between TBLE and tble; `cleared`: whether tble ends the table for
// the records behind it too.
inline std::string gather_without_table(TextFile& file, std::string record, const TypeWords& type,
                                        bool cleared) {
  std::string text;
  bool in_table = false;
  for (;;) {
    if (record.empty()) record = GetRecord(file);
    if (right(record, type.n) == type.lower) {
      if (in_table && holds(record, "tble")) record = mid(record, in_str<char>(record, "tble") + 4);
      return text + without_last(record, type.n);
    }
    if (holds(record, "TBLE")) {
      text += left(record, in_str<char>(record, "TBLE") - 1) + "\r\n";
      in_table = true;
    } else if (holds(record, "tble") && in_table) {
      text += mid(record, in_str<char>(record, "tble") + 4) + "\r\n";
      if (cleared) in_table = false;
    } else if (!in_table) {
      text += record + "\r\n";
    }
    record.clear();
    if (file.at_end()) return text;
  }
}

enum class Gathering { whole, without_table };

// Calls entity(text) for each entity of the type. `six_everywhere`: whether a first word of six
// letters stands alone on any record, not only on the first one.
template <class Entity>
void scan_entities(TextFile& file, const std::string& token, Gathering gathering,
                   bool six_everywhere, Entity&& entity) {
  const TypeWords type(token);
  bool first = true;
  while (!file.at_end()) {
    std::string record = GetRecord(file);
    const std::string word = take_word(record);
    if (word != type.upper) {
      if (!((first || six_everywhere) && word.size() == 6)) skip_foreign(file, record, word);
    } else if (gathering == Gathering::whole) {
      entity(gather_whole(file, record, type));
    } else {
      entity(gather_without_table(file, record, type, true));
    }
    first = false;
  }
}

}  // namespace kw::reference
