#include "platform/linux/file_errors.h"

#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

bool is_folder(const std::string& path) {
  struct stat status;
  const int result = restarted([&] { return system_calls().stat(path.c_str(), &status); });
  return result == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

ErrorNumber error_number(int code) noexcept {
  switch (code) {
    case ENAMETOOLONG:
      return ErrorNumber::bad_file_name_or_number;
    case ENOENT:
      return ErrorNumber::file_not_found;
    case ENOTDIR:
      return ErrorNumber::path_not_found;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::disk_full;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
    case ELOOP:
      return ErrorNumber::permission_denied;
    default:
      return ErrorNumber::io_error;
  }
}

bool means_missing(int code) noexcept {
  return code == ENOENT || code == ENOTDIR || code == ENAMETOOLONG;
}

void throw_file_error(int code, const std::string& name) {
  throw Error(error_number(code), name, code);
}

void throw_lookup_error(int code, const FileName& name) {
  if (code == ENOENT && !is_folder(folder_of(name.path))) {
    throw Error(ErrorNumber::path_not_found, name.given, code);
  }
  throw_file_error(code, name.given);
}

}  // namespace kw::platform
