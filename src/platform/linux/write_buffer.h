// Buffered writing to a descriptor. No failure is lost: after the first one every call fails with
// the same error.
#pragma once

#include <memory>
#include <string_view>

#include "platform/linux/descriptor.h"

namespace kw::platform {

class WriteBuffer {
 public:
  WriteBuffer(Descriptor file, FileName name);
  void write(std::string_view bytes);
  // Hands everything to the system.
  void flush();
  // flush(), and the system hands everything to the disk.
  void sync();
  // flush(), and the descriptor is closed.
  void close();

  const Descriptor& descriptor() const noexcept { return file_; }

 private:
  void check() const;
  [[noreturn]] void fail(int code);
  void write_through(std::string_view bytes);

  Descriptor file_;
  FileName name_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
  int failure_ = 0;
};

}  // namespace kw::platform
