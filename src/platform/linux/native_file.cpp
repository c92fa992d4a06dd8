#include "platform/native_file.h"

#include "platform/linux/system_calls.h"

namespace kw::platform {

SystemCode write_some(const NativeFile& file, std::string_view bytes, std::size_t& count) noexcept {
  const ssize_t written =
      restarted([&] { return system_calls().write(file.get(), bytes.data(), bytes.size()); });
  if (written < 0) return errno;
  count = static_cast<std::size_t>(written);
  return count == 0 ? EIO : 0;  // it would never end
}

SystemCode sync_to_disk(const NativeFile& file) noexcept {
  return restarted([&] { return system_calls().fsync(file.get()); }) == 0 ? 0 : errno;
}

}  // namespace kw::platform
