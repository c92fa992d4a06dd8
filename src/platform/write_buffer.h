// Buffered writing to a file. No failure is lost: after the first one every call fails with the
// same error.
#pragma once

#include <memory>
#include <string_view>

#include "platform/native_file.h"

namespace kw::platform {

class WriteBuffer {
 public:
  WriteBuffer(NativeFile file, FileName name);
  void write(std::string_view bytes);
  // Hands everything to the system.
  void flush();
  // flush(), and the system hands everything to the disk.
  void sync();
  // flush(), and the file is closed.
  void close();

  const NativeFile& file() const noexcept { return file_; }
  // Closes the file without a word about what is still buffered.
  void drop() noexcept { file_.close(); }

 private:
  void check() const;
  [[noreturn]] void fail(SystemCode code);
  void write_through(std::string_view bytes);

  NativeFile file_;
  FileName name_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
  SystemCode failure_ = 0;
};

}  // namespace kw::platform
