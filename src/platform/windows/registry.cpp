#include "platform/registry.h"

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/guid_text.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/registry_key.h"
#include "platform/windows/type_library.h"
// After the system's general header.
#include <objbase.h>

namespace kw::platform {
namespace {

const std::u16string kClasses = u"Software\\Classes";

HKEY root(RegistryScope scope) {
  return scope == RegistryScope::user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

std::u16string text_of(const GUID& guid) { return from_utf8(guid_text(guid)); }

std::u16string class_key(const RegisteredClass& entry) {
  return u"CLSID\\" + text_of(entry.class_id);
}

void put(RegistryKey& classes, const RegisteredClass& entry, const std::u16string& library,
         const std::optional<TypeLibraryId>& types) {
  const std::u16string name = from_utf8(entry.name), key = class_key(entry);
  const std::u16string help = from_utf8(entry.help);
  classes.set(key, help);
  classes.set(key + u"\\InprocServer32", library);
  classes.set(key + u"\\InprocServer32", u"Apartment", u"ThreadingModel");
  classes.set(key + u"\\ProgID", name);
  if (types) {
    classes.set(key + u"\\TypeLib", text_of(types->id));
    classes.set(key + u"\\Version",
                from_utf8(std::to_string(types->major) + "." + std::to_string(types->minor)));
  }
  classes.set(name, help);
  classes.set(name + u"\\CLSID", text_of(entry.class_id));
}

// A 32-bit and a 64-bit library keep their classes apart, but share the programmatic names.
bool other_bitness_serves(RegistryScope scope, const RegisteredClass& entry) {
  const std::u16string path = kClasses + u"\\" + class_key(entry) + u"\\InprocServer32";
  constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  HKEY key = nullptr;
  if (RegOpenKeyExW(root(scope), wide(path), 0, KEY_READ | kOther, &key) != ERROR_SUCCESS)
    return false;
  RegCloseKey(key);
  return true;
}

// While the other bitness is registered, only the file of this one goes: the system's own function
// would remove the interfaces that both share.
void remove_type_library(RegistryKey& classes, const TypeLibraryId& types, RegistryScope scope,
                         bool shared) {
  if (shared)
    classes.remove(type_library_file_key(types));
  else  // what is not there cannot be removed: no failure
    unregister_type_library(types, scope == RegistryScope::user);
}

void check(HRESULT answer) {
  if (answer >= 0) return;
  const auto code = static_cast<std::uint32_t>(answer);
  throw_file_error((code >> 16) == 0x8007 ? code & 0xFFFF : code, "registry of type libraries");
}

}  // namespace

void register_classes(std::span<const RegisteredClass> classes, std::string_view library,
                      RegistryScope scope) {
  const std::u16string path = from_utf8(library);
  const auto types = type_library_of(path);
  RegistryKey key(root(scope), kClasses);
  for (const RegisteredClass& entry : classes) put(key, entry, path, types);
  if (types) check(register_type_library(path, scope == RegistryScope::user));
}

void unregister_classes(std::span<const RegisteredClass> classes, RegistryScope scope) {
  RegistryKey key(root(scope), kClasses);
  bool shared = false;
  for (const RegisteredClass& entry : classes) {
    key.remove(class_key(entry));
    const bool other_serves = other_bitness_serves(scope, entry);
    shared = shared || other_serves;
    if (!other_serves) key.remove(from_utf8(entry.name));
  }
  if (const auto types = type_library_of(from_utf8(own_module_path())))
    remove_type_library(key, *types, scope, shared);
}

RegistryScope own_scope() noexcept { return RegistryScope::system; }

std::optional<ClassServer> find_class_server(std::u16string_view name) {
  if (const auto id = parse_guid(to_utf8(name))) return ClassServer{*id, {}};
  ::CLSID id = {};
  if (CLSIDFromProgID(wide(std::u16string(name)), &id) != S_OK) return std::nullopt;
  return ClassServer{reinterpret_cast<const GUID&>(id), {}};
}

std::string own_module_path() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const WCHAR*>(&own_module_path), &module);
  const auto ask = [&](WCHAR* buffer, DWORD size) {
    return GetModuleFileNameW(module, buffer, size);
  };
  return to_utf8(asked_text(ask));
}

}  // namespace kw::platform
