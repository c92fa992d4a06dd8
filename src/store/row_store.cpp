#include "store/row_store.h"

#include "base/unicode.h"
#include "kwutils/error.h"
#include "store/gathering.h"
#include "store/text.h"

namespace kw::store {

void RowStore::add(std::string_view row) {
  if (ends_.size() == capacity_) spill();
  bytes_.append(row).append(kLineEnd);
  ends_.push_back(bytes_.size());
  ++total_;
}

void RowStore::create_file() {
  platform::FileService& service = platform::files();
  if (service.same_file(spill_file_, source_file_))
    throw Error(ErrorNumber::permission_denied, to_utf8(spill_file_));
  file_ = service.create_output(spill_file_);
}

void RowStore::spill() {
  if (!file_) create_file();
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
