#include "platform/linux/write_buffer.h"

#include <cstring>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

constexpr std::size_t kCapacity = 128 * 1024;

}  // namespace

// The buffer is not cleared: small files never touch most of it.
WriteBuffer::WriteBuffer(Descriptor file, FileName name)
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
  if (restarted([&] { return system_calls().fsync(file_.get()); }) != 0) fail(errno);
}

void WriteBuffer::close() {
  flush();
  if (const int code = file_.close()) fail(code);
}

void WriteBuffer::check() const {
  if (failure_ != 0) throw_file_error(failure_, name_.given);
}

void WriteBuffer::fail(int code) {
  failure_ = code;
  throw_file_error(code, name_.given);
}

void WriteBuffer::write_through(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count =
        restarted([&] { return system_calls().write(file_.get(), bytes.data(), bytes.size()); });
    if (count < 0) fail(errno);
    if (count == 0) fail(EIO);  // it would never end
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace kw::platform
