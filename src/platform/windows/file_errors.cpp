#include "platform/windows/file_errors.h"

#include "platform/windows/system.h"

namespace kw::platform {
namespace {

constexpr std::uint32_t kDiskQuotaExceeded = 1295;  // missing in the headers

bool folder_exists(const FileName& name) {
  const std::u16string path = full_path(name.path);
  const std::u16string folder = path.substr(0, path.find_last_of(u"\\/") + 1);
  return GetFileAttributesW(wide(folder)) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

ErrorNumber error_number(std::uint32_t code) noexcept {
  switch (code) {
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return ErrorNumber::bad_file_name_or_number;
    case ERROR_FILE_NOT_FOUND:
      return ErrorNumber::file_not_found;
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK:
    case ERROR_SEEK_ON_DEVICE:
      return ErrorNumber::bad_record_number;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
      return ErrorNumber::disk_full;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_BUSY:
    case ERROR_DELETE_PENDING:
    case ERROR_USER_MAPPED_FILE:
      return ErrorNumber::permission_denied;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return ErrorNumber::path_not_found;
    default:
      return ErrorNumber::io_error;
  }
}

void throw_file_error(std::uint32_t code, const std::string& name) {
  throw Error(error_number(code), name, static_cast<std::int32_t>(code));
}

void throw_lookup_error(std::uint32_t code, const FileName& name) {
  if (code == ERROR_FILE_NOT_FOUND && !folder_exists(name))
    throw Error(ErrorNumber::path_not_found, name.given, static_cast<std::int32_t>(code));
  throw_file_error(code, name.given);
}

}  // namespace kw::platform
