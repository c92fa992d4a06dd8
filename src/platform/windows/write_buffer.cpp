#include "platform/windows/write_buffer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/windows/file_errors.h"

namespace kw::platform {
namespace {

constexpr std::size_t kCapacity = 128 * 1024;
// As much as one call is given; some systems refuse more on a network.
constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;

}  // namespace

// The buffer is not cleared: small files never touch most of it.
WriteBuffer::WriteBuffer(Handle file, FileName name)
    : file_(std::move(file)), name_(std::move(name)), buffer_(new char[kCapacity]) {}

void WriteBuffer::write(std::string_view bytes) {
  check();
  if (bytes.size() > kCapacity - used_) {
    flush();
    if (bytes.size() >= kCapacity) return write_through(bytes);
  }
  if (bytes.empty()) return;
  std::memcpy(buffer_.get() + used_, bytes.data(), bytes.size());
  used_ += bytes.size();
}

void WriteBuffer::flush() {
  check();
  write_through({buffer_.get(), std::exchange(used_, 0)});
}

void WriteBuffer::sync() {
  flush();
  if (!FlushFileBuffers(file_.get())) fail(GetLastError());
}

void WriteBuffer::close() {
  flush();
  if (const DWORD code = file_.close()) fail(code);
}

void WriteBuffer::check() const {
  if (failure_ != 0) throw_file_error(failure_, name_.given);
}

void WriteBuffer::fail(DWORD code) {
  failure_ = code;
  throw_file_error(code, name_.given);
}

void WriteBuffer::write_through(std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (!WriteFile(file_.get(), bytes.data(), size, &count, nullptr)) fail(GetLastError());
    if (count == 0) fail(ERROR_WRITE_FAULT);  // it would never end
    bytes.remove_prefix(count);
  }
}

}  // namespace kw::platform
