// The look-ups of one entity, step by step.
#pragma once

#include <optional>
#include <string>

#include "reference/parse_keyword.h"
#include "reference/record_scan.h"

namespace kw::reference {

inline std::string value_of(const std::string& text, const std::string& keyword) {
  return values<char>(text, keyword, 1)[1];
}

inline std::string FindEntity(TextFile file, const std::string& token, const std::string& id,
                              std::optional<std::string> item = {},
                              std::optional<int> position = {}) {
  const TypeWords type(token);
  std::string keyword;
  std::string sought = "'" + id + "'";
  if (const std::size_t quote = in_str<char>(id, "'"); quote != 0) {
    keyword = trim(left(id, quote - 1));
    sought = mid(id, quote);
  }
  if (item) {
    keyword = trim(*item);
  } else if (keyword.empty()) {
    keyword = "id";
  }
  bool first = true;
  if (position && *position >= 1) file.position = static_cast<std::size_t>(*position) - 1;
  while (!file.at_end()) {
    std::string record = GetRecord(file);
    const std::string word = take_word(record);
    if (word != type.upper) {
      if (!(first && word.size() == 6)) skip_foreign(file, record, word);
    } else {
      const std::string text = gather_whole(file, record, type);
      if (same_text("'" + value_of(text, keyword) + "'", sought)) return text;
    }
    first = false;
  }
  return {};
}

inline std::string GetTokenEntity(TextFile file, const std::string& token) {
  const TypeWords type(token);
  bool first = true;
  while (!file.at_end()) {
    std::string record = GetRecord(file);
    const std::string word = take_word(record);
    if (word == type.upper) return gather_whole(file, record, type);
    if (!(first && word.size() == 6)) skip_foreign(file, record, word);
    first = false;
  }
  return {};
}

inline std::string GetEntity(const TextFile& file, const std::string& token,
                             const std::string& id) {
  if (trim(token) == trim(id)) return GetTokenEntity(file, token);
  return FindEntity(file, token, id);
}

// Moves the file behind the opening record of the entity and gives what follows its first word;
// nothing when there is none.
inline std::optional<std::string> find_candidate(TextFile& file, const std::string& token,
                                                 const std::string& id) {
  const TypeWords type(token);
  const bool type_alone = id == token;
  bool first = true;
  bool candidate = false;
  while (!file.at_end()) {
    std::string record = GetRecord(file);
    if (type_alone) {
      if (holds(record, id)) candidate = true;
    } else {
      candidate = false;
      if (holds(id, "'")) {
        candidate = holds(record, id);
      } else if (const std::size_t p = in_str<char>(record, "id"); p != 0) {
        std::string behind = mid(record, p + 2);
        candidate = take_word(behind) == id;
      }
    }
    if (candidate) {
      const std::string word = take_word(record);
      if (word == type.upper) return record;
      if (!(first && word.size() == 6)) skip_foreign(file, record, word);
    }
    first = false;
  }
  return std::nullopt;
}

inline std::string GetEntityWithoutTable(TextFile file, const std::string& token,
                                         const std::string& id) {
  const std::optional<std::string> record = find_candidate(file, token, id);
  if (!record) return {};
  return gather_without_table(file, *record, TypeWords(token), false);
}

}  // namespace kw::reference
