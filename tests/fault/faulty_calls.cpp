#include "fault/faulty_calls.h"

#include <signal.h>
#include <unistd.h>

namespace kw::fault {
namespace {

constexpr std::size_t kMostInterruptions = 100;  // whoever restarts would restart for ever

const char* how_often(Repeat repeat) {
  switch (repeat) {
    case Repeat::once:
      return " once";
    case Repeat::same_call:
      return " at every such call from then on";
    case Repeat::always:
      return " from then on";
  }
  return "";
}

[[noreturn]] void die() {
  for (;;) kill(getpid(), SIGKILL);
}

}  // namespace

std::string describe(const Fault& fault, const std::string& call_name) {
  const std::string place = "call " + std::to_string(fault.call) + " (" + call_name + "): ";
  switch (fault.kind) {
    case Kind::none:
      return place + "nothing";
    case Kind::error:
      return place + "error " + std::to_string(fault.error) + how_often(fault.repeat);
    case Kind::short_write:
      return place + "short write" + how_often(fault.repeat);
    case Kind::kill:
      return place + "killed before it";
    case Kind::kill_midway:
      return place + "killed in the middle of it";
  }
  return place;
}

bool FaultyCalls::is_due(const char* name) const {
  if (fault_.error == EINTR && injected_ >= kMostInterruptions) return false;
  if (calls_ == fault_.call) return true;
  if (calls_ < fault_.call || injected_ == 0) return false;
  return fault_.repeat == Repeat::always ||
         (fault_.repeat == Repeat::same_call && first_hit_ == name);
}

void FaultyCalls::hit(const char* name) {
  if (injected_++ == 0) first_hit_ = name;
}

bool FaultyCalls::fails(const char* name) {
  ++calls_;
  if (!is_due(name)) return false;
  if (fault_.kind == Kind::kill) die();
  if (fault_.kind != Kind::error) return false;
  hit(name);
  errno = fault_.error;
  return true;
}

// A write of one byte has no half.
ssize_t FaultyCalls::write(int file, const void* bytes, std::size_t size) {
  if (fails("write")) return -1;
  const bool halves = fault_.kind == Kind::short_write || fault_.kind == Kind::kill_midway;
  if (!halves || size < 2 || !is_due("write")) return next_.write(file, bytes, size);
  hit("write");
  const ssize_t count = next_.write(file, bytes, size / 2);
  if (fault_.kind == Kind::kill_midway) die();
  return count;
}

// A failed close has closed all the same, as the system's does.
int FaultyCalls::close(int file) {
  const bool failing = fails("close");
  const int error = errno;
  const int result = next_.close(file);
  if (!failing) return result;
  errno = error;
  return -1;
}

int FaultyCalls::open(const char* path, int flags, mode_t mode) {
  return fails("open") ? -1 : next_.open(path, flags, mode);
}
int FaultyCalls::duplicate(int file) { return fails("duplicate") ? -1 : next_.duplicate(file); }
int FaultyCalls::make_blocking(int file) {
  return fails("make_blocking") ? -1 : next_.make_blocking(file);
}
ssize_t FaultyCalls::read(int file, void* buffer, std::size_t size) {
  return fails("read") ? -1 : next_.read(file, buffer, size);
}
off_t FaultyCalls::lseek(int file, off_t offset, int whence) {
  return fails("lseek") ? -1 : next_.lseek(file, offset, whence);
}
// Nothing here can tell whether the disk was reached, and waiting for it takes most of the time.
int FaultyCalls::fsync(int) { return fails("fsync") ? -1 : 0; }
int FaultyCalls::flock(int file, int operation) {
  return fails("flock") ? -1 : next_.flock(file, operation);
}
int FaultyCalls::fstat(int file, struct stat* status) {
  return fails("fstat") ? -1 : next_.fstat(file, status);
}
int FaultyCalls::stat(const char* path, struct stat* status) {
  return fails("stat") ? -1 : next_.stat(path, status);
}
int FaultyCalls::lstat(const char* path, struct stat* status) {
  return fails("lstat") ? -1 : next_.lstat(path, status);
}
ssize_t FaultyCalls::readlink(const char* path, char* buffer, std::size_t size) {
  return fails("readlink") ? -1 : next_.readlink(path, buffer, size);
}
int FaultyCalls::fchmod(int file, mode_t mode) {
  return fails("fchmod") ? -1 : next_.fchmod(file, mode);
}
int FaultyCalls::fchown(int file, uid_t owner, gid_t group) {
  return fails("fchown") ? -1 : next_.fchown(file, owner, group);
}
int FaultyCalls::rename(const char* from, const char* to) {
  return fails("rename") ? -1 : next_.rename(from, to);
}
int FaultyCalls::unlink(const char* path) { return fails("unlink") ? -1 : next_.unlink(path); }

}  // namespace kw::fault
