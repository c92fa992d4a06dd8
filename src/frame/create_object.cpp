#include "kwutils/create_object.h"

#include <string>

#include "base/unicode.h"
#include "kwutils/error.h"
#include "platform/class_loader.h"
#include "platform/registry.h"
#include "types/status.h"

namespace kw {
namespace {

platform::ClassServer registered(std::u16string_view name) {
  if (auto server = platform::find_class_server(name)) return *std::move(server);
  Error error(ErrorNumber::cannot_create_object);
  error.description = "Cannot create object: class '" + to_utf8(name) + "' is not registered";
  throw error;
}

Object instance_from(IUnknown* factory) {
  void* maker = nullptr;
  const HRESULT answer = factory->QueryInterface(kIidClassFactory, &maker);
  factory->Release();
  check_status(answer);
  void* object = nullptr;
  const HRESULT created =
      static_cast<IClassFactory*>(maker)->CreateInstance(nullptr, kIidDispatch, &object);
  static_cast<IClassFactory*>(maker)->Release();
  check_status(created);
  return Object::attach(static_cast<IDispatch*>(object));
}

}  // namespace

Object create_object(std::u16string_view name) {
  const platform::ClassServer server = registered(name);
  return instance_from(platform::load_class_factory(server.library, server.class_id));
}

}  // namespace kw
