#include "platform/windows/registry_key.h"

#include "base/unicode.h"
#include "platform/windows/file_errors.h"

namespace kw::platform {
namespace {

void check(LONG code, const std::u16string& name) {
  if (code != ERROR_SUCCESS)
    throw_file_error(static_cast<std::uint32_t>(code), "registry key " + to_utf8(name));
}

}  // namespace

RegistryKey::RegistryKey(HKEY parent, const std::u16string& name) {
  check(RegCreateKeyExW(parent, wide(name), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr),
        name);
}

void RegistryKey::set(const std::u16string& key, std::u16string_view value, const char16_t* name) {
  const RegistryKey below(key_, key);
  const std::u16string text(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(char16_t));
  check(RegSetValueExW(below.get(), name != nullptr ? wide(name) : nullptr, 0, REG_SZ,
                       reinterpret_cast<const BYTE*>(text.c_str()), size),
        key);
}

void RegistryKey::remove(const std::u16string& key) {
  const LONG code = RegDeleteTreeW(key_, wide(key));
  if (code != ERROR_FILE_NOT_FOUND) check(code, key);
}

}  // namespace kw::platform
