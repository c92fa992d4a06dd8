#include "platform/write_buffer.h"

#include <cstring>
#include <utility>

namespace kw::platform {
namespace {

constexpr std::size_t kCapacity = 128 * 1024;

}  // namespace

// The buffer is not cleared: small files never touch most of it.
WriteBuffer::WriteBuffer(NativeFile file, FileName name)
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
  if (const SystemCode code = sync_to_disk(file_)) fail(code);
}

void WriteBuffer::close() {
  flush();
  if (const SystemCode code = file_.close()) fail(code);
}

void WriteBuffer::check() const {
  if (failure_ != 0) throw_file_error(failure_, name_.given);
}

void WriteBuffer::fail(SystemCode code) {
  failure_ = code;
  throw_file_error(code, name_.given);
}

void WriteBuffer::write_through(std::string_view bytes) {
  while (!bytes.empty()) {
    std::size_t count = 0;
    if (const SystemCode code = write_some(file_, bytes, count)) fail(code);
    bytes.remove_prefix(count);
  }
}

}  // namespace kw::platform
