#include "platform/linux/descriptor.h"

#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {

Descriptor::Descriptor(Descriptor&& other) noexcept : file_(std::exchange(other.file_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this != &other) {
    close();
    file_ = std::exchange(other.file_, -1);
  }
  return *this;
}

int Descriptor::close() noexcept {
  if (file_ < 0) return 0;
  // An interrupted close has released the descriptor: to close it again could hit another file.
  const int result = system_calls().close(std::exchange(file_, -1));
  return result == 0 || errno == EINTR ? 0 : errno;
}

Descriptor open_descriptor(const std::string& path, int flags, mode_t mode) {
  return Descriptor(restarted([&] { return system_calls().open(path.c_str(), flags, mode); }));
}

struct stat status_of(const Descriptor& file, const FileName& name) {
  struct stat status;
  const int result = restarted([&] { return system_calls().fstat(file.get(), &status); });
  if (result != 0) throw_file_error(errno, name.given);
  return status;
}

std::size_t read_some(const Descriptor& file, char* buffer, std::size_t size,
                      const FileName& name) {
  const ssize_t count = restarted([&] { return system_calls().read(file.get(), buffer, size); });
  if (count < 0) throw_file_error(errno, name.given);
  return static_cast<std::size_t>(count);
}

}  // namespace kw::platform
