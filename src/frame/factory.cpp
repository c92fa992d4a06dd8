#include "frame/factory.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>

#include "frame/failure.h"
#include "frame/host_door.h"
#include "frame/object.h"

namespace kw::frame {
namespace {

class Factory final : public IClassFactory {
 public:
  explicit Factory(const ClassTable& table) noexcept : table_(table) {}

  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) noexcept override {
    if (object == nullptr) return status::kPointer;
    *object = nullptr;
    if (iid == kIidUnknown || iid == kIidClassFactory)
      *object = static_cast<IClassFactory*>(this);
    else if (iid == kIidHostDoor)
      *object = &host_door();
    return *object != nullptr ? status::kOk : status::kNoInterface;
  }
  // The library does not go before its factories, so their references need no count.
  std::uint32_t KW_STDCALL AddRef() noexcept override { return 2; }
  std::uint32_t KW_STDCALL Release() noexcept override { return 1; }

  HRESULT KW_STDCALL CreateInstance(IUnknown* outer, const GUID& iid,
                                    void** object) noexcept override {
    if (object == nullptr) return status::kPointer;
    *object = nullptr;
    return outer != nullptr ? status::kNoAggregation : create_object(table_, iid, object);
  }
  HRESULT KW_STDCALL LockServer(std::int32_t lock) noexcept override {
    // An unlock that no lock preceded must not hide an object that is alive.
    if (lock == 0 && locks_.load() == 0) return status::kOk;
    const std::int32_t by = lock != 0 ? 1 : -1;
    locks_ += by;
    g_holds.fetch_add(by, std::memory_order_relaxed);
    return status::kOk;
  }

 private:
  const ClassTable& table_;
  std::atomic<std::int32_t> locks_{0};
};

}  // namespace

IUnknown& factory_of(const ClassTable& table) {
  static std::mutex mutex;
  static std::map<const ClassTable*, std::unique_ptr<Factory>> factories;
  const std::lock_guard lock(mutex);
  auto& factory = factories[&table];
  if (factory == nullptr) factory = std::make_unique<Factory>(table);
  return *factory;
}

HRESULT create_object(const ClassTable& table, const GUID& iid, void** object) noexcept {
  try {
    ObjectBase* created = table.create();
    IDispatch* interface = created->interface_pointer();
    const HRESULT answer = interface->QueryInterface(iid, object);
    created->release();
    return answer;
  } catch (...) {
    return publish(current_failure(table), table);
  }
}

bool nothing_is_held() noexcept { return g_holds.load(std::memory_order_relaxed) == 0; }

}  // namespace kw::frame
