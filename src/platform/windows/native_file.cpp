#include "platform/native_file.h"

#include <algorithm>

namespace kw::platform {
namespace {

// As much as one call is given; some systems refuse more on a network.
constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;

}  // namespace

SystemCode write_some(const NativeFile& file, std::string_view bytes, std::size_t& count) noexcept {
  DWORD written = 0;
  const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
  if (!WriteFile(file.get(), bytes.data(), size, &written, nullptr)) return GetLastError();
  count = written;
  return count == 0 ? ERROR_WRITE_FAULT : 0;  // it would never end
}

SystemCode sync_to_disk(const NativeFile& file) noexcept {
  return FlushFileBuffers(file.get()) ? 0 : GetLastError();
}

}  // namespace kw::platform
