#include "platform/linux/exclusive_file.h"

#include <fcntl.h>
#include <sys/file.h>

#include <memory>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

constexpr int kAttempts = 100;  // the name may pass on this often while it is being taken
constexpr std::size_t kCopyBlock = 256 * 1024;

// Whether the name leads to that very file.
bool bears_name(const struct stat& file, const FileName& name) {
  struct stat named;
  const int result = restarted([&] { return system_calls().lstat(name.path.c_str(), &named); });
  if (result != 0 && !means_missing(errno)) throw_file_error(errno, name.given);
  return result == 0 && named.st_dev == file.st_dev && named.st_ino == file.st_ino;
}

// Empty where the file is gone again.
Descriptor open_leftover(const FileName& name) {
  constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK;  // a pipe would keep us waiting
  Descriptor file = open_descriptor(name.path, O_RDWR | kFlags);
  if (!file && errno == EACCES) file = open_descriptor(name.path, O_RDONLY | kFlags);
  if (!file && errno != ENOENT) throw_file_error(errno, name.given);
  return file;
}

bool lock_holds(const Descriptor& file, const FileName& name) {
  const struct stat status = status_of(file, name);
  if (!S_ISREG(status.st_mode)) {
    throw Error(ErrorNumber::permission_denied, name.given, EEXIST);
  }
  const int result = restarted([&] { return system_calls().flock(file.get(), LOCK_EX | LOCK_NB); });
  if (result != 0) throw_file_error(errno, name.given);
  return bears_name(status, name);
}

void remove_name(const FileName& name) {
  const int result = restarted([&] { return system_calls().unlink(name.path.c_str()); });
  if (result != 0 && errno != ENOENT) throw_file_error(errno, name.given);
}

// Throws where the file, open and locked under its name, is also the target's. Only now is that
// certain: while it is open its number passes to no other file, while it is locked it does not
// move.
void spare_target(const Descriptor& file, const FileName& name, const FileName& target) {
  if (bears_name(status_of(file, name), target)) {
    throw Error(ErrorNumber::invalid_argument, name.given);
  }
}

void remove_leftover(const FileName& name, const FileName& target) {
  Descriptor leftover = open_leftover(name);
  if (leftover && lock_holds(leftover, name)) {
    spare_target(leftover, name, target);
    remove_name(name);
  }
  if (const int code = leftover.close()) throw_file_error(code, name.given);
}

Descriptor take_name(const FileName& name, const FileName& target, mode_t mode) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    Descriptor made = open_descriptor(name.path, O_RDWR | O_CREAT | O_EXCL, mode);
    if (made) {
      if (lock_holds(made, name)) return made;
      continue;
    }
    if (errno == ENOENT) throw Error(ErrorNumber::path_not_found, name.given, ENOENT);
    if (errno != EEXIST) throw_file_error(errno, name.given);
    remove_leftover(name, target);
  }
  throw_file_error(EWOULDBLOCK, name.given);
}

Descriptor duplicate(const Descriptor& file, const FileName& name) {
  Descriptor second(restarted([&] { return system_calls().duplicate(file.get()); }));
  if (!second) throw_file_error(errno, name.given);
  return second;
}

// False where the system does not let us give the file away.
bool change_owner(const Descriptor& file, uid_t owner, gid_t group, const FileName& name) {
  if (restarted([&] { return system_calls().fchown(file.get(), owner, group); }) == 0) return true;
  if (errno != EPERM) throw_file_error(errno, name.given);
  return false;
}

void take_permissions(const Descriptor& file, const struct stat& replaced, const FileName& name) {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  const struct stat ours = status_of(file, name);
  mode_t mode = replaced.st_mode & 07777;
  if ((ours.st_uid != replaced.st_uid || ours.st_gid != replaced.st_gid) &&
      !change_owner(file, replaced.st_uid, replaced.st_gid, name)) {
    change_owner(file, kSameOwner, replaced.st_gid, name);
    mode &= 0777;  // the right to act as the owner must not pass to somebody else's file
  }
  if (restarted([&] { return system_calls().fchmod(file.get(), mode); }) != 0) {
    throw_file_error(errno, name.given);
  }
}

}  // namespace

ExclusiveFile::ExclusiveFile(FileName name, const FileName& target, mode_t mode)
    : name_(std::move(name)),
      lock_(take_name(name_, target, mode)),
      buffer_(duplicate(lock_, name_), name_) {}

ExclusiveFile::~ExclusiveFile() {
  try {
    if (!moved_ && holds_name()) remove_name(name_);
  } catch (const Error&) {
    // The file stays behind; whoever takes the name next removes it.
  }
}

void ExclusiveFile::finish(const struct stat* replaced) {
  buffer_.flush();
  if (replaced) take_permissions(buffer_.file(), *replaced, name_);
  buffer_.sync();
  // Closing may report a failed write. It comes before the move; the lock's descriptor stays.
  buffer_.close();
}

void ExclusiveFile::copy_to(ExclusiveFile& other) const {
  if (restarted([&] { return system_calls().lseek(lock_.get(), 0, SEEK_SET); }) != 0) {
    throw_file_error(errno, name_.given);
  }
  const std::unique_ptr<char[]> block(new char[kCopyBlock]);
  while (const std::size_t size = read_some(lock_, block.get(), kCopyBlock, name_)) {
    other.write({block.get(), size});
  }
}

bool ExclusiveFile::move_to(const FileName& target) {
  // Another program may have removed or replaced the file: what it put there must not be moved.
  if (!holds_name()) throw_file_error(ESTALE, name_.given);
  const int result =
      restarted([&] { return system_calls().rename(name_.path.c_str(), target.path.c_str()); });
  if (result != 0 && errno == EXDEV) return false;
  if (result != 0) throw_file_error(errno, target.given);
  moved_ = true;
  return true;
}

void ExclusiveFile::release() {
  if (!moved_ && holds_name()) remove_name(name_);
  moved_ = true;
  if (const int code = lock_.close()) throw_file_error(code, name_.given);
}

bool ExclusiveFile::holds_name() const { return bears_name(status_of(lock_, name_), name_); }

}  // namespace kw::platform
