// The table of the system calls that the file service makes. Each entry is the call of its name; a
// test overrides entries to make a chosen call fail, and puts its table in use for a while.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>

namespace kw::platform {

class SystemCalls {
 public:
  virtual ~SystemCalls() = default;
  virtual int open(const char* path, int flags, mode_t mode);
  virtual int close(int file);
  // A second descriptor of the same open file: position and lock are shared.
  virtual int duplicate(int file);
  // Undoes O_NONBLOCK.
  virtual int make_blocking(int file);
  virtual ssize_t read(int file, void* buffer, std::size_t size);
  virtual ssize_t write(int file, const void* bytes, std::size_t size);
  virtual off_t lseek(int file, off_t offset, int whence);
  virtual int fsync(int file);
  virtual int flock(int file, int operation);
  virtual int fstat(int file, struct stat* status);
  virtual int stat(const char* path, struct stat* status);
  virtual int lstat(const char* path, struct stat* status);
  virtual ssize_t readlink(const char* path, char* buffer, std::size_t size);
  virtual int fchmod(int file, mode_t mode);
  virtual int fchown(int file, uid_t owner, gid_t group);
  virtual int rename(const char* from, const char* to);
  virtual int unlink(const char* path);
};

// The table in use.
SystemCalls& system_calls() noexcept;

// Puts `calls` in use, for every thread, during its own life.
class ScopedSystemCalls {
 public:
  explicit ScopedSystemCalls(SystemCalls& calls) noexcept;
  ~ScopedSystemCalls();
  ScopedSystemCalls(const ScopedSystemCalls&) = delete;
  ScopedSystemCalls& operator=(const ScopedSystemCalls&) = delete;

 private:
  SystemCalls* previous_;
};

// Makes a call again as long as a signal interrupts it.
template <class Call>
auto restarted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace kw::platform
