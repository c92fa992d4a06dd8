#include "platform/paths.h"

#include <atomic>
#include <filesystem>
#include <system_error>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/host_functions.h"
#include "platform/registry.h"

namespace kw::platform {
namespace {

constexpr char16_t kRootDrive = u'C';

// The process has no current drive of its own here; this is where it is remembered.
std::atomic<char16_t> g_drive{kRootDrive};

bool is_letter(char16_t c) { return (c | 0x20) >= u'a' && (c | 0x20) <= u'z'; }

// "/home/a" as a path of drive C:.
std::u16string windows_text(const std::filesystem::path& path) {
  std::u16string text = u"C:" + from_utf8(path.native());
  for (char16_t& c : text)
    if (c == u'/') c = u'\\';
  return text;
}

}  // namespace

char16_t current_drive() {
  const HostFunctions& host = host_functions();
  return host.current_drive != nullptr ? host.current_drive(host.context) : g_drive.load();
}

void change_drive(char16_t letter) {
  if (!is_letter(letter)) throw Error(ErrorNumber::device_unavailable);
  const HostFunctions& host = host_functions();
  if (host.change_drive == nullptr) {
    g_drive = static_cast<char16_t>(letter & ~0x20);
    return;
  }
  const std::int32_t failure = host.change_drive(host.context, letter);
  if (failure != 0) throw Error(ErrorNumber{failure});
}

std::u16string current_directory() {
  if (auto text = host_text(&HostFunctions::current_directory)) return *std::move(text);
  if (g_drive != kRootDrive) return {g_drive.load(), u':', u'\\'};
  std::error_code failure;
  const auto path = std::filesystem::current_path(failure);
  if (failure) throw Error(ErrorNumber::path_not_found, {}, failure.value());
  return windows_text(path);
}

std::u16string module_directory() {
  if (auto text = host_text(&HostFunctions::module_directory)) return *std::move(text);
  return windows_text(std::filesystem::path(own_module_path()).parent_path());
}

std::u16string module_name() {
  if (auto text = host_text(&HostFunctions::module_name)) return *std::move(text);
  // Without the version, which stands behind the extension here.
  const std::string file = std::filesystem::path(own_module_path()).filename().native();
  return from_utf8(file.substr(0, file.find(".so")));
}

}  // namespace kw::platform
