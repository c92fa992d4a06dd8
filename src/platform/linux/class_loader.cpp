#include "platform/class_loader.h"

#include <dlfcn.h>

#include <string>

#include "kwutils/error.h"

namespace kw::platform {
namespace {

[[noreturn]] void cannot_create(const std::string& library, const std::string& reason) {
  Error error(ErrorNumber::cannot_create_object);
  error.description = "Cannot create object: library '" + library + "': " + reason;
  throw error;
}

}  // namespace

IUnknown* load_class_factory(const std::string& library, const GUID& class_id) {
  using GetClassObject = HRESULT(KW_STDCALL*)(const GUID&, const GUID&, void**);
  void* module = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) cannot_create(library, dlerror());
  const auto get = reinterpret_cast<GetClassObject>(dlsym(module, "DllGetClassObject"));
  if (get == nullptr) cannot_create(library, "it has no DllGetClassObject");
  void* factory = nullptr;
  if (get(class_id, kIidUnknown, &factory) < 0) cannot_create(library, "it has no such class");
  return static_cast<IUnknown*>(factory);
}

}  // namespace kw::platform
