#include "platform/windows/stream_files.h"

#include <algorithm>
#include <utility>

#include "kwutils/error.h"
#include "platform/buffered_output.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

constexpr std::size_t kMostAtOnce = 16 * 1024 * 1024;

// A file that somebody holds is tried again after 1, 2, 3 ... milliseconds.
constexpr DWORD kLongestPause = 10;

Handle opened_for_reading(const FileName& name) {
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return Handle(CreateFileW(wide(name.path), GENERIC_READ, kSharing, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool is_on_disk(const Handle& file) { return GetFileType(file.get()) == FILE_TYPE_DISK; }

class SystemInput : public InputFile {
 public:
  SystemInput(Handle file, FileName name) : file_(std::move(file)), name_(std::move(name)) {}

  std::size_t read(char* buffer, std::size_t size) override {
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min(size, kMostAtOnce));
    if (!ReadFile(file_.get(), buffer, most, &count, nullptr)) check_end(GetLastError());
    return count;
  }

  void seek(std::int64_t position) override {
    LARGE_INTEGER to;
    to.QuadPart = position;
    if (position < 0 || !is_on_disk(file_)) fail_seek(ERROR_NEGATIVE_SEEK);
    if (!SetFilePointerEx(file_.get(), to, nullptr, FILE_BEGIN)) fail_seek(GetLastError());
  }

  std::int64_t size_hint() override {
    LARGE_INTEGER size = {};
    if (is_on_disk(file_) && !GetFileSizeEx(file_.get(), &size))
      throw_file_error(GetLastError(), name_.given);
    return size.QuadPart;
  }

 private:
  // The last writer of a pipe has closed it: that is the end, and no failure.
  void check_end(DWORD code) const {
    if (code != ERROR_BROKEN_PIPE && code != ERROR_HANDLE_EOF) throw_file_error(code, name_.given);
  }

  [[noreturn]] void fail_seek(DWORD code) const {
    throw Error(ErrorNumber::bad_record_number, name_.given, static_cast<std::int32_t>(code));
  }

  Handle file_;
  FileName name_;
};

}  // namespace

std::unique_ptr<InputFile> open_system_input(FileName name) {
  Handle file = opened_for_reading(name);
  // A file that has just been put in its place is still held for a moment.
  for (DWORD pause = 1;
       !file && GetLastError() == ERROR_SHARING_VIOLATION && pause <= kLongestPause; ++pause) {
    Sleep(pause);
    file = opened_for_reading(name);
  }
  if (!file) throw_lookup_error(GetLastError(), name);
  return std::make_unique<SystemInput>(std::move(file), std::move(name));
}

// Opened and emptied in two steps: in one the system refuses a hidden file.
std::unique_ptr<OutputFile> create_system_output(FileName name) {
  constexpr DWORD kSharing = FILE_SHARE_READ | FILE_SHARE_WRITE;
  Handle file(CreateFileW(wide(name.path), GENERIC_WRITE, kSharing, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) throw_lookup_error(GetLastError(), name);
  if (is_on_disk(file) && !SetEndOfFile(file.get())) throw_file_error(GetLastError(), name.given);
  return buffered_output(std::move(file), std::move(name));
}

}  // namespace kw::platform
