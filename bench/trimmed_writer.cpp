#include "trimmed_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace kw::bench {
namespace {

[[noreturn]] void fail(const char* action) {
  throw std::system_error(errno, std::generic_category(), action);
}

}  // namespace

TrimmedWriter::TrimmedWriter(const std::filesystem::path& path)
    : file_(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)),
      buffer_(std::make_unique_for_overwrite<char[]>(kBuffer)) {
  if (file_ < 0) fail("open");
}

TrimmedWriter::~TrimmedWriter() {
  if (file_ >= 0) ::close(file_);
}

void TrimmedWriter::finish(bool flush) {
  empty();
  if (flush && ::fdatasync(file_) != 0) fail("flush");
  if (::close(file_) != 0) fail("close");
  file_ = -1;
}

void TrimmedWriter::write_slowly(const char* text, std::size_t length) {
  empty();
  write_out(text, length);
  write_out("\r\n", 2);
}

void TrimmedWriter::write_out(const char* text, std::size_t length) {
  while (length > 0) {
    const ssize_t done = ::write(file_, text, length);
    if (done < 0) fail("write");
    text += done;
    length -= static_cast<std::size_t>(done);
  }
}

void TrimmedWriter::empty() {
  write_out(buffer_.get(), used_);
  used_ = 0;
}

}  // namespace kw::bench
