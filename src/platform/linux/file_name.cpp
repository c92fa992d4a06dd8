#include "platform/linux/file_name.h"

#include <algorithm>
#include <climits>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace kw::platform {
namespace {

constexpr int kMostLinks = 40;  // as many as the system itself follows

bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool has_drive(const std::string& name) {
  return name.size() >= 2 && name[1] == ':' && is_letter(name[0]);
}

bool exists_as_given(const std::string& name) {
  struct stat status;
  if (restarted([&] { return system_calls().lstat(name.c_str(), &status); }) == 0) return true;
  if (!means_missing(errno)) throw_file_error(errno, name);
  return false;
}

std::string without_drive(const std::string& name) {
  if (!has_drive(name)) return name;
  if (name[0] != 'C' && name[0] != 'c') throw Error(ErrorNumber::path_not_found, name, ENOENT);
  return name.size() == 2 ? "." : name.substr(2);
}

}  // namespace

FileName native_name(std::u16string_view name) {
  std::string given = to_utf8(name);
  if (name.empty() || name.find(u'\0') != name.npos) {
    throw Error(ErrorNumber::bad_file_name_or_number, given, EINVAL);
  }
  const bool foreign = has_drive(given) || given.find('\\') != given.npos;
  if (!foreign || exists_as_given(given)) return {given, given};
  std::string path = without_drive(given);
  std::replace(path.begin(), path.end(), '\\', '/');
  return {std::move(given), std::move(path)};
}

std::string folder_of(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == path.npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

FileName follow_links(FileName name) {
  char text[PATH_MAX];
  for (int links = 0; links < kMostLinks; ++links) {
    const ssize_t size =
        restarted([&] { return system_calls().readlink(name.path.c_str(), text, sizeof text); });
    if (size < 0 && (errno == EINVAL || errno == ENOENT)) return name;
    if (size < 0) throw_file_error(errno, name.given);
    const std::string to(text, static_cast<std::size_t>(size));
    name.path = to.front() == '/' ? to : folder_of(name.path) + "/" + to;
  }
  throw_file_error(ELOOP, name.given);
}

}  // namespace kw::platform
