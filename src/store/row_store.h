// Rows that are gathered, a limited number of them in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kwutils/string.h"
#include "platform/files.h"

namespace kw::store {

class RowStore {
 public:
  // The file is made when the first row comes that does not fit; error 70 when it is `source_file`,
  // which the rows are read from.
  RowStore(std::u16string_view spill_file, std::u16string_view source_file,
           std::int32_t capacity) noexcept
      : spill_file_(spill_file),
        source_file_(source_file),
        capacity_(static_cast<std::size_t>(capacity)) {}

  void add(std::string_view row);
  // Whether rows went to the file.
  bool spilled() const noexcept { return file_ != nullptr; }
  // Writes what is still in memory and closes the file; only where rows went there.
  void finish_file();

  // How many rows there were.
  std::int32_t total() const noexcept { return total_; }
  // Those in memory, each with its line end.
  std::vector<String> kept() const;

 private:
  void create_file();
  void spill();

  std::u16string_view spill_file_;
  std::u16string_view source_file_;
  std::size_t capacity_;
  std::int32_t total_ = 0;
  std::string bytes_;              // the rows in memory, one after the other
  std::vector<std::size_t> ends_;  // of each of them in the bytes
  std::unique_ptr<platform::OutputFile> file_;
};

}  // namespace kw::store
