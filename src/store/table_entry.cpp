#include "store/table_entry.h"

#include <utility>
#include <vector>

#include "store/candidate.h"
#include "store/row_store.h"
#include "store/scan.h"
#include "store/table_rows.h"
#include "store/text.h"

namespace kw::store {

namespace {

String row_text(std::string_view row) {
  String text = String::uninitialized(row.size() + kLineEnd.size());
  widen(row, text.data());
  widen(kLineEnd, text.data() + row.size());
  return text;
}

// Hands the rows of the entity to on_row; false when there is no such entity.
template <class OnRow>
bool read_rows(const TableQuery& query, OnRow&& on_row) {
  Scan scan(query.file, TypeWord::of_token(query.token));
  std::string_view record;
  if (!scan.walk.next_candidate(record, CandidateTest(query.token, query.id))) return false;
  for_each_row(scan.records, record, scan.closing(), on_row);
  return true;
}

}  // namespace

std::int32_t table_entry(const TableQuery& query, Array<String>& table, std::int32_t buffer_size) {
  table.redim(1, buffer_size);
  std::vector<String> rows;
  bool found = false;
  try {
    found = read_rows(query, [&](std::string_view row) { rows.push_back(row_text(row)); });
  } catch (...) {
    if (!rows.empty()) table.publish(1, std::move(rows));
    throw;
  }
  const auto count = static_cast<std::int32_t>(rows.size());
  if (found) table.publish(1, std::move(rows));
  return count;
}

std::int32_t table_entry_with_spill(const TableQuery& query, Array<String>& table,
                                    std::u16string_view spill_file, Boolean& stored,
                                    std::int32_t buffer_size) {
  table.redim(1, buffer_size);
  stored = false;
  RowStore rows(spill_file, query.file, buffer_size);
  try {
    read_rows(query, [&](std::string_view row) { rows.add(row); });
    stored = rows.spilled();
    if (stored) rows.finish_file();
  } catch (...) {
    stored = rows.spilled();
    if (rows.total() != 0) table.publish(1, rows.kept());
    throw;
  }
  if (stored) {
    table.redim(1, 1);
  } else if (rows.total() != 0) {
    table.publish(1, rows.kept());
  }
  return rows.total();
}

}  // namespace kw::store
