// Tables, step by step.
#pragma once

#include <string>
#include <vector>

#include "reference/parse_sub_entities.h"

namespace kw::reference {

inline Wide parse_table(Wide& buf) {
  Wide result;
  std::size_t e = 0;
  while (!buf.empty()) {
    const Wide line = trim(parse_record(buf));
    if (in_str(line, Wide(u"TBLE")) != 1) continue;
    e = in_str(buf, Wide(u"tble"));
    if (e > 0) result = left(buf, e - 1);
    break;
  }
  buf = mid(buf, e + 4);
  const std::size_t size = result.size();
  if (size >= 2 && mid(result, size - 1) == u"\r\n") result = left(result, size - 2);
  return result;
}

struct TableList {
  int error = 0;
  int rows = 0;             // numRows afterwards
  std::vector<Wide> table;  // elements from 1 on
};

inline TableList parse_table_list(Wide& entity, int rows, int growth_step) {
  TableList list{0, rows, std::vector<Wide>(1)};
  if (in_str(entity, Wide(u"tble")) == 0) return {0, 0, std::vector<Wide>(1)};
  Wide row;
  bool inside = false;
  const Wide line = walk_words(entity, false, [&](const Wide& word) {
    if (inside && word == u"tble") return true;
    if (inside && word == u"<") {
      ++list.rows;
      if (list.rows > static_cast<int>(list.table.size())) {
        list.table.resize(list.table.size() + static_cast<std::size_t>(growth_step));
      }
      if (list.rows < 1 || list.rows > static_cast<int>(list.table.size())) {
        list.error = 9;
        return true;
      }
      list.table[static_cast<std::size_t>(list.rows) - 1] = row + u"< \r\n";
      row.clear();
    } else if (inside) {
      row += word + u" ";
    } else if (word == u"TBLE") {
      inside = true;
    }
    return false;
  });
  if (list.error != 0) return list;
  if (!line.empty()) entity = line + u"\r\n" + entity;
  if (static_cast<int>(list.table.size()) > list.rows) {
    if (list.rows < 1) {
      list.error = 9;
    } else {
      list.table.resize(static_cast<std::size_t>(list.rows));
    }
  }
  return list;
}

}  // namespace kw::reference
