#include "platform/class_loader.h"

#include <cstring>
#include <string>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/windows/system.h"
// After the system's general header.
#include <objbase.h>

namespace kw::platform {
namespace {

using GetClassObject = HRESULT(KW_STDCALL*)(const GUID&, const GUID&, void**);

[[noreturn]] void cannot_create(const std::string& library, const std::string& reason,
                                std::int32_t code) {
  Error error(ErrorNumber::cannot_create_object, {}, code);
  error.description = "Cannot create object: ";
  if (!library.empty()) error.description += "library '" + library + "': ";
  error.description += reason;
  throw error;
}

GetClassObject entry_point(const std::string& library) {
  const std::u16string path = from_utf8(library);
  // Libraries beside it are found too.
  const HMODULE module = LoadLibraryExW(wide(path), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  const auto code = static_cast<std::int32_t>(GetLastError());
  if (module == nullptr)
    cannot_create(library, "it cannot be loaded (" + std::to_string(code) + ")", code);
  const FARPROC function = GetProcAddress(module, "DllGetClassObject");
  if (function == nullptr) cannot_create(library, "it has no DllGetClassObject", 0);
  GetClassObject get = nullptr;
  std::memcpy(&get, &function, sizeof get);
  return get;
}

// As the system would for any client: by its registry, or by the program's manifest.
HRESULT system_factory(const GUID& class_id, void** factory) {
  return CoGetClassObject(reinterpret_cast<const ::GUID&>(class_id), CLSCTX_INPROC_SERVER, nullptr,
                          reinterpret_cast<const ::GUID&>(kIidUnknown), factory);
}

}  // namespace

IUnknown* load_class_factory(const std::string& library, const GUID& class_id) {
  void* factory = nullptr;
  HRESULT answer = 0;
  if (!library.empty()) {
    answer = entry_point(library)(class_id, kIidUnknown, &factory);
  } else {
    answer = system_factory(class_id, &factory);
    if (answer == CO_E_NOTINITIALIZED && CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED) >= 0)
      answer = system_factory(class_id, &factory);
  }
  if (answer < 0) cannot_create(library, "there is no such class", answer);
  return static_cast<IUnknown*>(factory);
}

}  // namespace kw::platform
