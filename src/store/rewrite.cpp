#include "store/rewrite.h"

#include <cstdint>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "store/temporary_name.h"

namespace kw::store {

namespace {

// A longer block is not kept in memory but read twice.
constexpr std::size_t kLongestKept = std::size_t{256} << 10;

}  // namespace

Rewrite::Rewrite(std::u16string_view file)
    : temporary_(temporary_name(file)), staged_(new char[kStaged]) {
  platform::FileService& service = platform::files();
  new_file_ = service.create_replacement(temporary_, file);
  if (!service.exists(file)) return;
  old_file_ = service.open_input(file);
  old_records_ = std::make_unique<RecordReader>(*old_file_);
}

void Rewrite::refuse_temporary(std::u16string_view file) const {
  if (platform::files().same_file(file, temporary_))
    throw Error(ErrorNumber::permission_denied, to_utf8(file));
}

void Rewrite::write_over_the_end(std::string_view bytes) {
  for (std::size_t room; (room = kStaged - staged_size_) < bytes.size();) {
    stage(bytes.substr(0, room));
    write_staged();
    bytes.remove_prefix(room);
  }
  stage(bytes);
}

void Rewrite::write_staged() {
  new_file_->write({staged_.get(), staged_size_});
  staged_size_ = 0;
}

void Rewrite::copy_block(std::string_view record, const ClosingWord& closing) {
  if (closing.closes(record)) {
    if (!record.empty()) write_line(record);
    return;
  }
  block_.clear();
  for (;;) {
    if (block_.size() + record.size() > kLongestKept) return copy_long_block(record, closing);
    block_.append(record);
    if (closing.closes(record) || at_end()) break;
    block_.append(kLineEnd);
    record = next();
  }
  if (!block_.empty()) write_line(block_);
}

// From `record` on the block is read twice: for its comments, then for itself.
void Rewrite::copy_long_block(std::string_view record, const ClosingWord& closing) {
  const std::int64_t begin = record_position_;
  std::uint64_t count = 1;
  for (; !closing.closes(record) && !at_end(); ++count) record = next();
  const std::int64_t end = old_records_->position();
  write(block_);
  old_records_->seek(begin);
  for (; count != 0; --count) write_line(old_records_->next());
  // Somebody else wrote into the file meanwhile.
  if (old_records_->position() != end) throw Error(ErrorNumber::io_error);
}

void Rewrite::drop_block(std::string_view record, const ClosingWord& closing) {
  while (!closing.closes(record) && !at_end()) record = next();
}

void Rewrite::finish() {
  write_staged();
  old_records_.reset();
  old_file_.reset();  // some systems do not replace a file that is open
  new_file_->replace();
}

}  // namespace kw::store
