// System calls that fail, or end the process, where a test wants it.
#pragma once

#include <cstddef>
#include <string>

#include "platform/linux/system_calls.h"

namespace kw::fault {

// How the chosen call goes wrong.
enum class Kind {
  none,         // the calls are only counted
  error,        // it fails, with the error chosen
  short_write,  // a write takes half of its bytes; other calls are left alone
  kill,         // the process is killed before the call
  kill_midway,  // the process is killed after half of a write; other calls are left alone
};

enum class Repeat {
  once,       // the chosen call alone
  same_call,  // and every later call of the same name
  always,     // and every later call; an interruption (EINTR) only a hundred times
};

struct Fault {
  Kind kind = Kind::none;
  int error = 0;  // for Kind::error
  Repeat repeat = Repeat::once;
  std::size_t call = 0;  // counted from 1 over all calls
};

// "call 7 (write): error 28 from then on", for messages.
std::string describe(const Fault& fault, const std::string& call_name);

// What does not fail goes to the table that was in use when this one was made; only flushing to the
// disk is left out.
class FaultyCalls : public platform::SystemCalls {
 public:
  explicit FaultyCalls(Fault fault = {}) : fault_(fault) {}

  // All calls so far, those that failed included.
  std::size_t calls() const noexcept { return calls_; }
  // How often the fault came true, and the name of the first call that it hit.
  std::size_t injected() const noexcept { return injected_; }
  const std::string& first_hit() const noexcept { return first_hit_; }

  int open(const char* path, int flags, mode_t mode) override;
  int close(int file) override;
  int duplicate(int file) override;
  int make_blocking(int file) override;
  ssize_t read(int file, void* buffer, std::size_t size) override;
  ssize_t write(int file, const void* bytes, std::size_t size) override;
  off_t lseek(int file, off_t offset, int whence) override;
  int fsync(int file) override;
  int flock(int file, int operation) override;
  int fstat(int file, struct stat* status) override;
  int stat(const char* path, struct stat* status) override;
  int lstat(const char* path, struct stat* status) override;
  ssize_t readlink(const char* path, char* buffer, std::size_t size) override;
  int fchmod(int file, mode_t mode) override;
  int fchown(int file, uid_t owner, gid_t group) override;
  int rename(const char* from, const char* to) override;
  int unlink(const char* path) override;

 private:
  bool is_due(const char* name) const;
  void hit(const char* name);
  // Counts the call; true where it has to fail, with errno set.
  bool fails(const char* name);

  platform::SystemCalls& next_ = platform::system_calls();
  Fault fault_;
  std::size_t calls_ = 0;
  std::size_t injected_ = 0;
  std::string first_hit_;
};

}  // namespace kw::fault
