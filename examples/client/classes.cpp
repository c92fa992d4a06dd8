#include "client/classes.h"

#include <objbase.h>

#include <stdexcept>

Classes::Classes(const char* library) {
  if (library == nullptr) return;
  // It stays loaded to the end of the program: objects live in it.
  const HMODULE module = LoadLibraryA(library);
  if (module == nullptr) throw std::runtime_error(std::string("cannot load ") + library);
  get_class_object_ =
      reinterpret_cast<GetClassObject>(  // a function of a known type under a known name
          reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  if (get_class_object_ == nullptr)
    throw std::runtime_error(std::string(library) + " has no classes");
}

void Classes::create(REFCLSID class_id, REFIID interface_id, void** object) const {
  if (get_class_object_ == nullptr) {
    check(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, interface_id, object));
    return;
  }
  Reference<IClassFactory> factory;
  check(get_class_object_(class_id, __uuidof(IClassFactory), factory.untyped_place()));
  check(factory->CreateInstance(nullptr, interface_id, object));
}
