// The rows of the table inside an entity.
#pragma once

#include <string_view>

#include "base/find_text.h"
#include "parse/text_view.h"
#include "store/closing_word.h"
#include "store/gathering.h"
#include "store/record_reader.h"

namespace kw::store {

// Hands each row, without its line end, to on_row(row). `record` is the rest of the opening record.
//
// A table opens behind "TBLE"; what follows on the record is a row, then each record is one, until
// one holds "tble", in front of which may stand the last row. Another "TBLE" later opens it again.
// A closing record inside a table that does not close is a row, closing word included.
template <class OnRow>
void for_each_row(RecordReader& records, std::string_view record, const ClosingWord& closing,
                  OnRow&& on_row) {
  if (record.empty()) record = records.next();
  for (bool in_table = false;;) {
    const bool plain = !may_hold_table_word(record);
    const std::size_t opener = plain ? kNotFound : find_text(record, kTableOpener);
    if (opener != kNotFound) {
      in_table = true;
      record.remove_prefix(opener + kTableOpener.size());
    }
    if (in_table && plain) {
      on_row(record);
    } else if (in_table && !record.empty()) {
      const std::size_t closer = find_text(record, kTableCloser);
      in_table = closer == kNotFound;
      const std::string_view row = record.substr(0, closer);
      if (in_table || !parse::trim(row).empty()) on_row(row);
    }
    if (closing.closes(record) || records.at_end()) return;
    record = records.next();
  }
}

}  // namespace kw::store
