// The built KWUTILS.DLL, loaded from its file.
#pragma once

#include <string_view>

#include "base/unicode.h"
#include "frame/class_table.h"
#include "kwutils/object.h"
#include "platform/class_loader.h"
#include "server/class_list.h"

namespace kw::testing {

// The factory of a class of the built library, and nothing of the one linked into the test.
inline IClassFactory* built_factory(std::string_view name) {
  const frame::ClassTable* table = server::find_class(from_utf8(name));
  IUnknown* unknown = platform::load_class_factory(KW_LIBRARY, table->description().class_id);
  void* factory = nullptr;
  unknown->QueryInterface(kIidClassFactory, &factory);
  unknown->Release();
  return static_cast<IClassFactory*>(factory);
}

inline Object built_object(std::string_view name) {
  IClassFactory* factory = built_factory(name);
  void* object = nullptr;
  factory->CreateInstance(nullptr, kIidDispatch, &object);
  factory->Release();
  return Object::attach(static_cast<IDispatch*>(object));
}

// Calls the slot of an object as a compiled client does.
template <class... A>
HRESULT call_slot(const Object& object, std::size_t slot, A... arguments) {
  using Function = HRESULT(KW_STDCALL*)(IDispatch*, A...);
  void** slots = *reinterpret_cast<void***>(object.pointer());
  return reinterpret_cast<Function>(slots[slot])(object.pointer(), arguments...);
}

}  // namespace kw::testing
