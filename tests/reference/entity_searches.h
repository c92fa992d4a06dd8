// The searches that fill pick lists, step by step.
#pragma once

#include <optional>
#include <string>

#include "reference/bulk_reads.h"

namespace kw::reference {

struct SearchLists {
  KeyedList ids, names, third, fourth, positions;
};

struct SearchArguments {
  std::string token, search_token, search_value, name_token;
  std::optional<std::string> third_token, fourth_token;
  bool seek = false;
};

inline std::string without_quote(const std::string& text) {
  return right(text, 1) == "'" ? left(text, text.size() - 1) : text;
}

inline void strip_quote(std::string& variable) {
  if (right(variable, 1) == "'") variable = trim(without_quote(variable));
}

inline std::string further_value(std::optional<std::string>& variable, const std::string& record) {
  if (!variable) return {};
  for (char& character : *variable)
    if (character == '\t') character = ' ';
  return value_of(record, without_quote(trim(*variable)));
}

// What is done with the record of an entity.
inline void list_entity(const std::string& record, SearchArguments& arguments, SearchLists& lists,
                        std::size_t position) {
  strip_quote(arguments.search_token);
  const std::string id = trim(value_of(record, arguments.search_token));
  if (!id.empty() && lower_case(left(id, 3)) == "tmp") return;
  strip_quote(arguments.name_token);
  const std::string name = trim(value_of(record, arguments.name_token));
  const std::string third = trim(further_value(arguments.third_token, record));
  const std::string fourth = trim(further_value(arguments.fourth_token, record));
  if (!arguments.search_value.empty()) {
    std::string rest = trim(arguments.search_value);
    const std::string key = parse_list<char>(rest, " ", true);
    if (value_of(record, key) != value_of(arguments.search_value, key)) return;
  }
  if (id.empty()) {
    lists.names.add(name);
    if (arguments.third_token) lists.third.add(third);
    if (arguments.fourth_token) lists.fourth.add(fourth);
    return;
  }
  if (!lists.ids.add(id, id)) return;
  bool all = lists.names.add(name, id);
  if (arguments.third_token) all = lists.third.add(third, id) && all;
  if (arguments.fourth_token) all = lists.fourth.add(fourth, id) && all;
  if (all && arguments.seek) lists.positions.add(std::to_string(position + 1), id);
}

inline void List2EntitieswithSearch(TextFile file, SearchArguments& arguments, SearchLists& lists) {
  const std::string lt = lower_case(arguments.token);
  if (arguments.search_token.empty()) arguments.search_token = "id";
  if (arguments.name_token.empty()) arguments.name_token = "nm";
  bool first = true;
  while (!file.at_end()) {
    const std::size_t position = file.position;
    std::string record = GetRecord(file);
    const std::string word = take_word(record);
    if (word != arguments.token) {
      if (!(first && word.size() == 6)) skip_foreign(file, record, word);
    } else {
      list_entity(record, arguments, lists, position);
      while (!file.at_end() && right(record, lt.size()) != lt) record = GetRecord(file);
    }
    first = false;
  }
}

// Parts of entities between `part` and its lower case, their words joined by blanks.
inline void SubList2EntitieswithSearch(TextFile file, const std::string& part,
                                       SearchArguments& arguments, SearchLists& lists) {
  const std::string lt = lower_case(arguments.token);
  if (arguments.search_token.empty()) arguments.search_token = "id";
  if (arguments.name_token.empty()) arguments.name_token = "nm";
  bool first = true;
  while (!file.at_end()) {
    std::string record = GetRecord(file);
    const std::string word = take_word(record);
    if (word != arguments.token) {
      if (!(first && word.size() == 6)) skip_foreign(file, record, word);
    } else {
      std::string collected;
      bool inside = false;
      for (bool more = true; more;) {
        more = right(record, lt.size()) != lt;
        if (!more) record = without_last(record, lt.size());
        while (!record.empty()) {
          const std::string next = parse_list<char>(record, " ", true);
          if (!inside) {
            inside = next == part;
            collected.clear();
          } else if (next == lower_case(part)) {
            list_entity(collected, arguments, lists, 0);
            inside = false;
          } else {
            collected = collected.empty() ? next : collected + " " + next;
          }
        }
        if (more && file.at_end()) break;
        if (more) record = GetRecord(file);
      }
    }
    first = false;
  }
}

}  // namespace kw::reference
