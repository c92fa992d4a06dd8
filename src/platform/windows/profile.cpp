#include "platform/profile.h"

#include <algorithm>

#include "base/code_page.h"
#include "platform/host_functions.h"
#include "platform/windows/system.h"

namespace kw::platform::profile {
namespace {

// The name as the system takes it; a host's own directory stands in for the system's.
std::string located(std::string_view file) {
  const std::string name(file.substr(0, file.find('\0')));
  const auto directory = host_text(&HostFunctions::windows_directory);
  if (!directory || name.find_first_of("\\/:") != name.npos) return name;
  return narrow(*directory) + "\\" + name;
}

}  // namespace

std::string get_string(std::string_view section, std::string_view key, std::string_view fallback,
                       std::size_t capacity, std::string_view file) {
  std::string value(std::max<std::size_t>(capacity, 1), '\0');
  const DWORD length = GetPrivateProfileStringA(
      std::string(section).c_str(), std::string(key).c_str(), std::string(fallback).c_str(),
      value.data(), static_cast<DWORD>(capacity), located(file).c_str());
  value.resize(length);
  return value;
}

std::int32_t get_int(std::string_view section, std::string_view key, std::int32_t fallback,
                     std::string_view file) {
  return static_cast<std::int32_t>(GetPrivateProfileIntA(
      std::string(section).c_str(), std::string(key).c_str(), fallback, located(file).c_str()));
}

bool write_string(std::string_view section, std::string_view key,
                  std::optional<std::string_view> value, std::string_view file) {
  const std::string text(value.value_or(""));
  return WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                                    value ? text.c_str() : nullptr, located(file).c_str()) != 0;
}

std::u16string stored_name(std::u16string_view file) { return std::u16string(file); }

std::u16string windows_directory() {
  if (auto text = host_text(&HostFunctions::windows_directory)) return *std::move(text);
  const auto ask = [](WCHAR* buffer, DWORD size) { return GetWindowsDirectoryW(buffer, size); };
  return asked_text(ask);
}

}  // namespace kw::platform::profile
