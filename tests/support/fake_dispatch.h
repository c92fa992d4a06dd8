// What all late-bound objects of a caller's have in common.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "kwutils/automation.h"

namespace kw::testing {

// Counts its references and answers for its identity; it has no type information. Which names and
// members there are is up to the object derived from it. Nothing happens when the last reference is
// given back: such an object lives on the stack, unless it ends itself.
class FakeDispatch : public IDispatch {
 public:
  std::uint32_t references;

  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) override {
    const bool known = iid == kIidUnknown || iid == kIidDispatch;
    *object = known ? static_cast<IDispatch*>(this) : nullptr;
    if (known) AddRef();
    return known ? status::kOk : status::kNoInterface;
  }
  std::uint32_t KW_STDCALL AddRef() override { return ++references; }
  std::uint32_t KW_STDCALL Release() override { return --references; }
  HRESULT KW_STDCALL GetTypeInfoCount(std::uint32_t* count) override {
    *count = 0;
    return status::kOk;
  }
  HRESULT KW_STDCALL GetTypeInfo(std::uint32_t, LCID, ITypeInfo**) override {
    return status::kBadIndex;
  }
  HRESULT KW_STDCALL GetIDsOfNames(const GUID&, OLECHAR** names, std::uint32_t count, LCID,
                                   DISPID* ids) override {
    std::fill_n(ids, count, kDispidUnknown);
    ids[0] = id_of(names[0]);
    return ids[0] != kDispidUnknown ? status::kOk : status::kUnknownName;
  }

 protected:
  explicit FakeDispatch(std::uint32_t references_held) : references(references_held) {}
  ~FakeDispatch() = default;

  // kDispidUnknown where the object has no such name.
  virtual DISPID id_of(std::u16string_view name) const = 0;
};

}  // namespace kw::testing
