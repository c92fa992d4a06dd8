#include "platform/windows/exclusive_file.h"

#include <cstring>

#include "platform/windows/file_errors.h"

namespace kw::platform {
namespace {

// How often a name is tried that others take and free in turn.
constexpr int kMostTries = 100;
// A replacement that another program hinders is tried again after 1, 2, 3 ... milliseconds.
constexpr DWORD kLongestPause = 62;

// Replacing a file that readers have open, as far as they share it: newer than the headers.
constexpr auto kRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
constexpr DWORD kReplaceIfExists = 1;
constexpr DWORD kPosixSemantics = 2;

bool mark_for_removal(const Handle& file) {
  FILE_DISPOSITION_INFO disposition = {TRUE};
  return SetFileInformationByHandle(file.get(), FileDispositionInfo, &disposition,
                                    sizeof disposition);
}

// Removes a file that nobody holds. A name that is free meanwhile is as good.
void remove_left_over(const FileName& name) {
  const Handle file(
      CreateFileW(wide(name.path), DELETE | FILE_READ_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                  FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file && GetLastError() == ERROR_FILE_NOT_FOUND) return;
  if (!file) throw_file_error(GetLastError(), name.given);
  const bool folder = (traits_of(file).attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (folder || is_link(file)) throw_file_error(ERROR_ACCESS_DENIED, name.given);
  if (!mark_for_removal(file)) throw_file_error(GetLastError(), name.given);
}

Handle made_anew(const FileName& name) {
  constexpr DWORD kAccess = GENERIC_READ | GENERIC_WRITE | DELETE | WRITE_DAC;
  for (int tries = 0; tries < kMostTries; ++tries) {
    Handle file(CreateFileW(wide(name.path), kAccess, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                            nullptr));
    if (file && GetFileType(file.get()) == FILE_TYPE_DISK) return file;
    if (file) throw_file_error(ERROR_ACCESS_DENIED, name.given);
    const DWORD code = GetLastError();
    if (code != ERROR_FILE_EXISTS && code != ERROR_ALREADY_EXISTS)
      throw_lookup_error(code, name);
    remove_left_over(name);
  }
  throw_file_error(ERROR_SHARING_VIOLATION, name.given);
}

// Moves an open file over a name; the system's code, 0 when all went well.
class Renaming {
 public:
  explicit Renaming(const std::u16string& full_name)
      : info_(sizeof(FILE_RENAME_INFO) + full_name.size() * sizeof(char16_t)) {
    auto& info = *reinterpret_cast<FILE_RENAME_INFO*>(info_.data());
    info.FileNameLength = static_cast<DWORD>(full_name.size() * sizeof(char16_t));
    std::memcpy(info.FileName, full_name.data(), info.FileNameLength);
  }

  DWORD of(const Handle& file) {
    const DWORD code = with(file, kRenameInfoEx, kReplaceIfExists | kPosixSemantics);
    const bool unknown = code == ERROR_INVALID_PARAMETER || code == ERROR_INVALID_FUNCTION ||
                         code == ERROR_NOT_SUPPORTED || code == ERROR_CALL_NOT_IMPLEMENTED;
    return unknown ? with(file, FileRenameInfo, kReplaceIfExists) : code;
  }

 private:
  DWORD with(const Handle& file, FILE_INFO_BY_HANDLE_CLASS kind, DWORD flags) {
    std::memcpy(info_.data(), &flags, sizeof flags);
    const auto size = static_cast<DWORD>(info_.size());
    return SetFileInformationByHandle(file.get(), kind, info_.data(), size) ? 0 : GetLastError();
  }

  std::vector<char> info_;
};

bool may_pass(DWORD code) { return code == ERROR_ACCESS_DENIED || code == ERROR_SHARING_VIOLATION; }

}  // namespace

ExclusiveFile::ExclusiveFile(FileName name) : name_(name), buffer_(made_anew(name_), name_) {}

ExclusiveFile::~ExclusiveFile() {
  if (!moved_) mark_for_removal(buffer_.file());
}

void ExclusiveFile::finish(const FileTraits* replaced) {
  buffer_.flush();
  if (replaced != nullptr) set_traits(buffer_.file(), *replaced, name_);
  buffer_.sync();
}

void ExclusiveFile::copy_to(ExclusiveFile& other) const {
  const HANDLE file = buffer_.file().get();
  if (!SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_BEGIN))
    throw_file_error(GetLastError(), name_.given);
  std::vector<char> block(256 * 1024);
  while (true) {
    DWORD count = 0;
    if (!ReadFile(file, block.data(), static_cast<DWORD>(block.size()), &count, nullptr))
      throw_file_error(GetLastError(), name_.given);
    if (count == 0) return;
    other.write({block.data(), count});
  }
}

bool ExclusiveFile::move_to(const FileName& target) {
  Renaming renaming(full_path(target.path));
  DWORD code = renaming.of(buffer_.file());
  for (DWORD pause = 1; may_pass(code) && pause <= kLongestPause; ++pause) {
    Sleep(pause);
    code = renaming.of(buffer_.file());
  }
  if (code == ERROR_NOT_SAME_DEVICE) return false;
  if (code != 0) throw_file_error(code, target.given);
  // From here on others may open the file: under its new name nothing is exclusive.
  moved_ = true;
  buffer_.drop();
  return true;
}

}  // namespace kw::platform
