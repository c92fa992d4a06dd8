#include "platform/linux/stream_files.h"

#include <fcntl.h>

#include <limits>
#include <utility>

#include "kwutils/error.h"
#include "platform/buffered_output.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

class SystemInput : public InputFile {
 public:
  SystemInput(Descriptor file, FileName name) : file_(std::move(file)), name_(std::move(name)) {}

  std::size_t read(char* buffer, std::size_t size) override {
    return read_some(file_, buffer, size, name_);
  }

  void seek(std::int64_t position) override {
    if (position < 0) throw Error(ErrorNumber::bad_record_number, name_.given, EINVAL);
    const off_t result =
        restarted([&] { return system_calls().lseek(file_.get(), position, SEEK_SET); });
    if (result < 0) fail_seek(errno);
  }

  std::int64_t size_hint() override {
    const struct stat status = status_of(file_, name_);
    return S_ISREG(status.st_mode) ? status.st_size : 0;
  }

 private:
  [[noreturn]] void fail_seek(int code) const {
    const bool bad_position = code == EINVAL || code == ESPIPE || code == EOVERFLOW;
    if (bad_position) throw Error(ErrorNumber::bad_record_number, name_.given, code);
    throw_file_error(code, name_.given);
  }

  Descriptor file_;
  FileName name_;
};

}  // namespace

// A pipe that nobody has open for writing is empty: to open it must not wait for a writer, though
// to read it must wait for what a writer has not yet written.
std::unique_ptr<InputFile> open_system_input(FileName name) {
  Descriptor file = open_descriptor(name.path, O_RDONLY | O_NONBLOCK);
  if (!file) throw_lookup_error(errno, name);
  const mode_t mode = status_of(file, name).st_mode;
  // The system opens a folder and fails only when it is read.
  if (S_ISDIR(mode)) throw_file_error(EISDIR, name.given);
  if (!S_ISREG(mode) && system_calls().make_blocking(file.get()) != 0)
    throw_file_error(errno, name.given);
  return std::make_unique<SystemInput>(std::move(file), std::move(name));
}

std::unique_ptr<OutputFile> create_system_output(FileName name) {
  Descriptor file = open_descriptor(name.path, O_WRONLY | O_CREAT | O_TRUNC, 0666);
  if (!file && errno == ENOENT) throw Error(ErrorNumber::path_not_found, name.given, ENOENT);
  if (!file) throw_file_error(errno, name.given);
  return buffered_output(std::move(file), std::move(name));
}

}  // namespace kw::platform
