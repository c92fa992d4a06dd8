// The four functions that the library exports. They only forward.
#include <new>

#include "frame/factory.h"
#include "kwutils/automation.h"
#include "kwutils/error.h"
#include "platform/registry.h"
#include "server/class_list.h"
#include "server/registration.h"

namespace kw::server {
namespace {

template <class Body>
HRESULT guarded(Body&& body) noexcept {
  try {
    body();
    return status::kOk;
  } catch (const Error& error) {
    return status::kRunTimeError + static_cast<std::int32_t>(error.number);
  } catch (const std::bad_alloc&) {
    return status::kOutOfMemory;
  } catch (...) {
    return status::kUnexpected;
  }
}

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
      kw::server::guarded([&] { answer = kw::server::class_object(*class_id, *iid, object); });
  return guard != kw::status::kOk ? guard : answer;
}

KW_EXPORT kw::HRESULT KW_STDCALL DllRegisterServer() {
  return kw::server::guarded([] {
    kw::server::register_library(kw::platform::own_module_path(), kw::platform::own_scope());
  });
}

KW_EXPORT kw::HRESULT KW_STDCALL DllUnregisterServer() {
  return kw::server::guarded([] { kw::server::unregister_library(kw::platform::own_scope()); });
}

KW_EXPORT kw::HRESULT KW_STDCALL DllCanUnloadNow() {
  return kw::frame::nothing_is_held() ? kw::status::kOk : kw::status::kFalse;
}

}  // extern "C"
