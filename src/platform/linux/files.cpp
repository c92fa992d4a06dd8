#include "platform/files.h"

#include <fcntl.h>
#include <sys/file.h>

#include "kwutils/error.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/file_name.h"
#include "platform/linux/replacement.h"
#include "platform/linux/stream_files.h"
#include "platform/linux/system_calls.h"
#include "platform/system_files.h"

namespace kw::platform {
namespace {

class SystemFiles : public FileService {
 public:
  std::unique_ptr<InputFile> open_input(std::u16string_view name) override {
    return open_system_input(native_name(name));
  }

  std::unique_ptr<OutputFile> create_output(std::u16string_view name) override {
    return create_system_output(native_name(name));
  }

  std::unique_ptr<ReplacementFile> create_replacement(std::u16string_view temporary,
                                                      std::u16string_view target) override {
    return create_system_replacement(native_name(temporary), native_name(target));
  }

  bool same_file(std::u16string_view first, std::u16string_view second) override {
    struct stat left, right;
    return look_up(first, left) && look_up(second, right) && left.st_dev == right.st_dev &&
           left.st_ino == right.st_ino;
  }

  bool lies_idle(std::u16string_view name) override {
    const FileName file = native_name(name);
    const Descriptor opened = open_descriptor(file.path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (!opened) return exists(name);
    // A shared lock: it is let go at once, and nobody who asks the same is misled.
    return restarted([&] { return system_calls().flock(opened.get(), LOCK_SH | LOCK_NB); }) == 0 &&
           exists(name);
  }

  void check_attributes(std::u16string_view name) override {
    const FileName file = native_name(name);
    struct stat status;
    const int result = restarted([&] { return system_calls().stat(file.path.c_str(), &status); });
    if (result != 0) throw_lookup_error(errno, file);
  }

  void remove(std::u16string_view name) override {
    const FileName file = native_name(name);
    const int result = restarted([&] { return system_calls().unlink(file.path.c_str()); });
    if (result != 0) throw_lookup_error(errno, file);
  }

 private:
  // False where nothing has that name.
  static bool look_up(std::u16string_view name, struct stat& status) {
    try {
      const FileName file = native_name(name);
      if (restarted([&] { return system_calls().stat(file.path.c_str(), &status); }) == 0)
        return true;
      throw_file_error(errno, file.given);
    } catch (const Error& error) {
      if (!says_missing(error)) throw;
      return false;
    }
  }
};

}  // namespace

FileService& system_files() noexcept {
  static SystemFiles service;
  return service;
}

}  // namespace kw::platform
