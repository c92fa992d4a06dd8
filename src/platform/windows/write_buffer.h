// Buffered writing to a file. No failure is lost: after the first one every call fails with the
// same error.
#pragma once

#include <memory>
#include <string_view>

#include "platform/windows/file_name.h"
#include "platform/windows/system.h"

namespace kw::platform {

class WriteBuffer {
 public:
  WriteBuffer(Handle file, FileName name);
  void write(std::string_view bytes);
  // Hands everything to the system.
  void flush();
  // flush(), and the system hands everything to the disk.
  void sync();
  // flush(), and the file is closed.
  void close();

  const Handle& file() const noexcept { return file_; }
  // Closes the file without a word about what is still buffered.
  void drop() noexcept { file_.close(); }

 private:
  void check() const;
  [[noreturn]] void fail(DWORD code);
  void write_through(std::string_view bytes);

  Handle file_;
  FileName name_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
  DWORD failure_ = 0;
};

}  // namespace kw::platform
