#include "frame/collection_enumerator.h"

#include <algorithm>

#include "frame/collection_items.h"
#include "frame/object.h"
#include "kwutils/automation.h"

namespace kw::frame {
namespace {

class Enumerator final : public IEnumVARIANT {
 public:
  Enumerator(ObjectBase& collection, std::size_t position) noexcept
      : collection_(collection), position_(position) {
    collection_.add_reference();
    g_holds.fetch_add(1, std::memory_order_relaxed);
  }
  virtual ~Enumerator() {
    collection_.release();
    g_holds.fetch_sub(1, std::memory_order_relaxed);
  }

  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) noexcept override {
    if (object == nullptr) return status::kPointer;
    const bool known = iid == kIidUnknown || iid == kIidEnumVariant;
    *object = known ? this : nullptr;
    if (!known) return status::kNoInterface;
    AddRef();
    return status::kOk;
  }
  std::uint32_t KW_STDCALL AddRef() noexcept override { return ++references_; }
  std::uint32_t KW_STDCALL Release() noexcept override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT KW_STDCALL Next(std::uint32_t count, VARIANT* values,
                          std::uint32_t* fetched) noexcept override {
    if (fetched != nullptr) *fetched = 0;
    if (!collection_.on_own_thread()) return status::kWrongThread;
    if (values == nullptr && count != 0) return status::kPointer;
    for (std::uint32_t i = 0; i < count; ++i) {
      if (position_ >= items().size()) return status::kFalse;
      values[i].vt = kVtEmpty;
      const Variant& item = items().at(static_cast<std::int64_t>(++position_)).item;
      if (VariantCopy(&values[i], &item.raw()) < 0) return status::kOutOfMemory;
      if (fetched != nullptr) *fetched = i + 1;
    }
    return status::kOk;
  }
  HRESULT KW_STDCALL Skip(std::uint32_t count) noexcept override {
    if (!collection_.on_own_thread()) return status::kWrongThread;
    const std::size_t left = items().size() - std::min(items().size(), position_);
    position_ += std::min<std::size_t>(left, count);
    return count <= left ? status::kOk : status::kFalse;
  }
  HRESULT KW_STDCALL Reset() noexcept override {
    if (!collection_.on_own_thread()) return status::kWrongThread;
    position_ = 0;
    return status::kOk;
  }
  HRESULT KW_STDCALL Clone(IEnumVARIANT** copy) noexcept override {
    if (copy == nullptr) return status::kPointer;
    *copy = nullptr;
    if (!collection_.on_own_thread()) return status::kWrongThread;
    *copy = new (std::nothrow) Enumerator(collection_, position_);
    return *copy != nullptr ? status::kOk : status::kOutOfMemory;
  }

 private:
  CollectionItems& items() const noexcept { return instance_of<CollectionItems>(collection_); }

  ObjectBase& collection_;
  std::size_t position_;
  std::uint32_t references_ = 1;
};

}  // namespace

Unknown enumerate(CollectionItems& items) {
  return Unknown::attach(new Enumerator(items.object(), 0));
}

}  // namespace kw::frame
