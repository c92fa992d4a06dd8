#include "platform/paths.h"

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/host_functions.h"
#include "platform/registry.h"
#include "platform/windows/file_name.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

bool is_letter(char16_t c) { return (c | 0x20) >= u'a' && (c | 0x20) <= u'z'; }

std::u16string system_directory() {
  const auto ask = [](WCHAR* buffer, DWORD size) { return GetCurrentDirectoryW(size, buffer); };
  return asked_text(ask);
}

// The system keeps the current directories of the other drives in variables named "=C:"; they are
// what its own look-up of "C:name" goes by.
void remember_directory() {
  const std::u16string directory = system_directory();
  if (directory.size() < 2 || directory[1] != u':') return;
  const char16_t variable[] = {u'=', static_cast<char16_t>(directory[0] & ~0x20), u':', 0};
  SetEnvironmentVariableW(wide(variable), wide(directory));
}

bool enter(const std::u16string& directory) { return SetCurrentDirectoryW(wide(directory)); }

// "C:\" for a root, else without a "\" at the end.
std::u16string folder_of(const std::u16string& path) {
  const std::size_t end = path.find_last_of(u"\\/");
  if (end == path.npos) return {};
  return path.substr(0, end == 2 && path[1] == u':' ? 3 : end);
}

std::u16string module_path() { return from_utf8(own_module_path()); }

}  // namespace

char16_t current_drive() {
  const HostFunctions& host = host_functions();
  if (host.current_drive != nullptr) return host.current_drive(host.context);
  const std::u16string directory = system_directory();
  return directory.empty() ? u'\0' : directory[0];
}

void change_drive(char16_t letter) {
  if (!is_letter(letter)) throw Error(ErrorNumber::device_unavailable);
  const HostFunctions& host = host_functions();
  if (host.change_drive != nullptr) {
    const std::int32_t failure = host.change_drive(host.context, letter);
    if (failure != 0) throw Error(ErrorNumber{failure});
    return;
  }
  const std::u16string drive = {static_cast<char16_t>(letter & ~0x20), u':'};
  if ((current_drive() & ~0x20) == drive[0]) return;
  remember_directory();
  if (enter(full_path(drive)) || enter(drive + u"\\")) return;
  throw Error(ErrorNumber::device_unavailable, to_utf8(drive),
              static_cast<std::int32_t>(GetLastError()));
}

std::u16string current_directory() {
  if (auto text = host_text(&HostFunctions::current_directory)) return *std::move(text);
  return system_directory();
}

std::u16string module_directory() {
  if (auto text = host_text(&HostFunctions::module_directory)) return *std::move(text);
  return folder_of(module_path());
}

std::u16string module_name() {
  if (auto text = host_text(&HostFunctions::module_name)) return *std::move(text);
  const std::u16string path = module_path();
  const std::u16string file = path.substr(path.find_last_of(u"\\/") + 1);
  return file.substr(0, file.find_last_of(u'.'));
}

}  // namespace kw::platform
