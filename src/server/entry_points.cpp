// The four functions that the library exports. They only forward.
#include "frame/factory.h"
#include "frame/guarded.h"
#include "kwutils/automation.h"
#include "platform/registry.h"
#include "server/class_list.h"
#include "server/registration.h"

namespace kw::server {
namespace {

HRESULT class_object(const GUID& class_id, const GUID& iid, void** object) {
  const frame::ClassTable* table = find_class(class_id);
  if (table == nullptr) return status::kClassNotAvailable;
  return frame::factory_of(*table).QueryInterface(iid, object);
}

}  // namespace

}  // namespace kw::server

extern "C" {

KW_EXPORT kw::HRESULT KW_STDCALL DllGetClassObject(const kw::GUID* class_id, const kw::GUID* iid,
                                                   void** object) {
  if (object == nullptr) return kw::status::kPointer;
  *object = nullptr;
  if (class_id == nullptr || iid == nullptr) return kw::status::kInvalidArgument;
  kw::HRESULT answer = kw::status::kFail;
  const kw::HRESULT guard =
      kw::frame::guarded([&] { answer = kw::server::class_object(*class_id, *iid, object); });
  return guard != kw::status::kOk ? guard : answer;
}

KW_EXPORT kw::HRESULT KW_STDCALL DllRegisterServer() {
  return kw::frame::guarded([] {
    kw::server::register_library(kw::platform::own_module_path(), kw::platform::own_scope());
  });
}

KW_EXPORT kw::HRESULT KW_STDCALL DllUnregisterServer() {
  return kw::frame::guarded([] { kw::server::unregister_library(kw::platform::own_scope()); });
}

KW_EXPORT kw::HRESULT KW_STDCALL DllCanUnloadNow() {
  return kw::frame::nothing_is_held() ? kw::status::kOk : kw::status::kFalse;
}

}  // extern "C"
