// Where objects come from: from the registered library, or from a file that nobody registered.
#pragma once

#include <windows.h>

#include "client/failure.h"
#include "client/reference.h"

class Classes {
 public:
  // `library` is the path of KWUTILS.DLL; none for the registered one.
  explicit Classes(const char* library);

  template <class Interface, class Class>
  Reference<Interface> create() const {
    Reference<Interface> object;
    create(__uuidof(Class), __uuidof(Interface), object.untyped_place());
    return object;
  }

 private:
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);

  void create(REFCLSID class_id, REFIID interface_id, void** object) const;

  GetClassObject get_class_object_ = nullptr;
};
