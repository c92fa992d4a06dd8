#include "platform/windows/file_name.h"

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

// A folder's path must leave room for a file name of the oldest form; longer ones need the prefix.
constexpr std::size_t kLongPath = MAX_PATH - 12;

std::u16string without_limit(const std::u16string& path) {
  if (path.size() < kLongPath || path.starts_with(u"\\\\?\\") || path.starts_with(u"\\\\.\\"))
    return path;
  if (path.starts_with(u"\\\\")) return u"\\\\?\\UNC" + path.substr(1);
  return u"\\\\?\\" + path;
}

}  // namespace

std::u16string full_path(const std::u16string& path) {
  const auto ask = [&](WCHAR* buffer, DWORD size) {
    return GetFullPathNameW(wide(path), size, buffer, nullptr);
  };
  const std::u16string full = asked_text(ask);
  return full.empty() ? path : full;
}

FileName native_name(std::u16string_view name) {
  const std::string given = to_utf8(name);
  if (name.empty() || name.find(u'\0') != name.npos)
    throw Error(ErrorNumber::bad_file_name_or_number, given, ERROR_INVALID_NAME);
  const std::u16string path(name);
  const std::u16string full = full_path(path);
  return {given, full.size() < kLongPath ? path : without_limit(full)};
}

}  // namespace kw::platform
