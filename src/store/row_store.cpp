#include "store/row_store.h"

#include "store/gathering.h"
#include "store/text.h"

namespace kw::store {

void RowStore::add(std::string_view row) {
  if (ends_.size() == capacity_) spill();
  bytes_.append(row).append(kLineEnd);
  ends_.push_back(bytes_.size());
  ++total_;
}

void RowStore::spill() {
  if (!file_) file_ = platform::files().create_output(spill_file_);
  file_->write(bytes_);
  bytes_.clear();
  ends_.clear();
}

void RowStore::finish_file() {
  spill();
  file_->close();
}

std::vector<String> RowStore::kept() const {
  std::vector<String> rows;
  rows.reserve(ends_.size());
  std::size_t begin = 0;
  for (const std::size_t end : ends_) {
    rows.push_back(text_of(std::string_view(bytes_).substr(begin, end - begin)));
    begin = end;
  }
  return rows;
}

}  // namespace kw::store
