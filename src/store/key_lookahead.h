// Which of the records of a file hold a key: told for many of them by one search.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/find_text.h"
#include "store/record_reader.h"
#include "store/search_key.h"

namespace kw::store {

class KeyLookahead {
 public:
  // The key must outlive this.
  explicit KeyLookahead(const SearchKey& key) noexcept : key_(key) {}

  // Whether the record, which was just read from `records`, holds the key.
  bool in(std::string_view record, const RecordReader& records) {
    if (!key_.possible()) return false;
    if (records.position() > free_up_to_) {
      look_ahead(records);
      return key_.in(record);
    }
    // A key with blanks inside may stand where the file holds tabs.
    return records.changed_blanks() && key_.in(record);
  }

 private:
  // Finds the next place of the key behind the record.
  void look_ahead(const RecordReader& records) {
    const std::string_view bytes = records.buffered();
    const std::string_view core = key_.core();
    if (core.empty()) return;
    const std::size_t found = find_text(bytes, core);
    const std::size_t unsure = core.size() - 1;  // a key that the buffer cuts in two
    const std::size_t free = found != kNotFound      ? found
                             : bytes.size() > unsure ? bytes.size() - unsure
                                                     : 0;
    free_up_to_ = records.position() + static_cast<std::int64_t>(free);
  }

  const SearchKey& key_;
  std::int64_t free_up_to_ = 0;  // in front of that position, from the next record on, is no key
};

}  // namespace kw::store
