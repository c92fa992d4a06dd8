#include "platform/linux/system_calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>

namespace kw::platform {
namespace {

std::atomic<SystemCalls*> in_use{nullptr};

}  // namespace

int SystemCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags | O_CLOEXEC, mode);
}
int SystemCalls::close(int file) { return ::close(file); }
int SystemCalls::duplicate(int file) { return ::fcntl(file, F_DUPFD_CLOEXEC, 0); }
int SystemCalls::make_blocking(int file) { return ::fcntl(file, F_SETFL, 0); }
ssize_t SystemCalls::read(int file, void* buffer, std::size_t size) {
  return ::read(file, buffer, size);
}
ssize_t SystemCalls::write(int file, const void* bytes, std::size_t size) {
  return ::write(file, bytes, size);
}
off_t SystemCalls::lseek(int file, off_t offset, int whence) {
  return ::lseek(file, offset, whence);
}
int SystemCalls::fsync(int file) { return ::fsync(file); }
int SystemCalls::flock(int file, int operation) { return ::flock(file, operation); }
int SystemCalls::fstat(int file, struct stat* status) { return ::fstat(file, status); }
int SystemCalls::stat(const char* path, struct stat* status) { return ::stat(path, status); }
int SystemCalls::lstat(const char* path, struct stat* status) { return ::lstat(path, status); }
ssize_t SystemCalls::readlink(const char* path, char* buffer, std::size_t size) {
  return ::readlink(path, buffer, size);
}
int SystemCalls::fchmod(int file, mode_t mode) { return ::fchmod(file, mode); }
int SystemCalls::fchown(int file, uid_t owner, gid_t group) { return ::fchown(file, owner, group); }
int SystemCalls::rename(const char* from, const char* to) { return std::rename(from, to); }
int SystemCalls::unlink(const char* path) { return ::unlink(path); }

SystemCalls& system_calls() noexcept {
  static SystemCalls system;
  SystemCalls* calls = in_use.load(std::memory_order_acquire);
  return calls ? *calls : system;
}

ScopedSystemCalls::ScopedSystemCalls(SystemCalls& calls) noexcept
    : previous_(in_use.exchange(&calls, std::memory_order_acq_rel)) {}

ScopedSystemCalls::~ScopedSystemCalls() { in_use.store(previous_, std::memory_order_release); }

}  // namespace kw::platform
