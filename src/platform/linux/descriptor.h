// An open file of the system, closed with its owner.
#pragma once

#include <sys/stat.h>

#include "platform/linux/file_name.h"

namespace kw::platform {

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int file) noexcept : file_(file) {}
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor() { close(); }

  // Negative where there is none.
  int get() const noexcept { return file_; }
  explicit operator bool() const noexcept { return file_ >= 0; }
  // Returns the system's code, 0 when all went well. The descriptor is gone in either case.
  int close() noexcept;

 private:
  int file_ = -1;
};

// Empty on failure, with errno set.
Descriptor open_descriptor(const std::string& path, int flags, mode_t mode = 0);

// Throws on failure; `name` for the message.
struct stat status_of(const Descriptor& file, const FileName& name);

// Reads at most `size` bytes; 0 at the end only.
std::size_t read_some(const Descriptor& file, char* buffer, std::size_t size, const FileName& name);

}  // namespace kw::platform
