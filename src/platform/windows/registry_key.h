// A key of the system's registry, closed with its owner. Failures are kw::Error with the key's name
// and the system's code.
#pragma once

#include <string>
#include <string_view>

#include "platform/windows/system.h"

namespace kw::platform {

class RegistryKey {
 public:
  // Opens the key below `parent`, making it where it is missing.
  RegistryKey(HKEY parent, const std::u16string& name);
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() { RegCloseKey(key_); }

  HKEY get() const noexcept { return key_; }
  // Sets the value of a key below this one, which is made where it is missing; no name means the
  // key's own value.
  void set(const std::u16string& key, std::u16string_view value, const char16_t* name = nullptr);
  // Removes a key below this one with everything in it. That there is none is no failure.
  void remove(const std::u16string& key);

 private:
  HKEY key_ = nullptr;
};

}  // namespace kw::platform
