// A file that is copied, record by record, into the temporary file that replaces it.
//
// What comes back is normalised: records without the blanks around them, a CR LF behind each, no
// empty lines; comment lines are copied as they stand in the file, at the moment at which they are
// read. So the comments inside a block come to stand in front of it: the block is written when its
// last record was read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "store/closing_word.h"
#include "store/gathering.h"
#include "store/record_reader.h"

namespace kw::store {

class Rewrite {
 public:
  // Begins the new content of `file`, which need not exist. Errors as create_replacement, and 5 for
  // a file name of fewer than five characters.
  explicit Rewrite(std::u16string_view file);

  // Whether all of the old content was read; true where there is none.
  bool at_end() { return !old_records_ || old_records_->at_end(); }

  // The next record of the old content, valid until the next call. Comments before it are copied.
  std::string_view next() {
    record_position_ = old_records_->position();
    return GetRecordKeepComments(*old_records_);
  }
  // The same for the records of another file, whose comments are copied too.
  std::string_view GetRecordKeepComments(RecordReader& records) {
    return records.next([this](std::string_view comment) { write_line(comment); });
  }

  // Error 70 when the file is the temporary file itself, which nobody else may read or write: what
  // is written would come back to be written again.
  void refuse_temporary(std::u16string_view file) const;

  // The reader of the old content; only where at_end() is false.
  const RecordReader& old_records() const noexcept { return *old_records_; }

  // Writes as it is.
  void write(std::string_view bytes) {
    if (bytes.size() > kStaged - staged_size_) return write_over_the_end(bytes);
    stage(bytes);
  }
  void write_line(std::string_view line) {
    write(line);
    write(kLineEnd);
  }

  // Writes the block that `record`, the one read last, opens, and reads on to the record that
  // closes it. Of a block without text nothing is written.
  void copy_block(std::string_view record, const ClosingWord& closing);
  // Reads as copy_block and writes no more than comments.
  void drop_block(std::string_view record, const ClosingWord& closing);

  // Puts the new content in the place of the old one.
  void finish();

 private:
  // Handed to the new file in full pieces, which are long enough to be written without another
  // copy.
  static constexpr std::size_t kStaged = std::size_t{128} << 10;

  void stage(std::string_view bytes) {
    std::memcpy(staged_.get() + staged_size_, bytes.data(), bytes.size());
    staged_size_ += bytes.size();
  }
  void write_staged();
  void write_over_the_end(std::string_view bytes);
  void copy_long_block(std::string_view record, const ClosingWord& closing);

  std::u16string temporary_;
  std::unique_ptr<platform::ReplacementFile> new_file_;
  std::unique_ptr<platform::InputFile> old_file_;
  std::unique_ptr<RecordReader> old_records_;
  std::int64_t record_position_ = 0;  // of the record read last, or of the comments before it
  std::unique_ptr<char[]> staged_;    // not cleared: small files never touch most of it
  std::size_t staged_size_ = 0;
  std::string block_;  // the records of one block that wait for the comments inside it
};

}  // namespace kw::store
