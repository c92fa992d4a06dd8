// A caller's form: an object that answers to the names it was given and writes down what is asked.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "kwutils/automation.h"
#include "kwutils/object.h"
#include "kwutils/variant.h"

namespace kw::testing {

// Lives on the stack; every reference to it must be gone before it is.
class FakeForm final : public IDispatch {
 public:
  void set(const std::u16string& name, Variant value) { properties_[name] = std::move(value); }
  Variant variable() { return Variant(Object::share(this)); }

  std::vector<std::u16string> reads;
  std::uint32_t references = 0;

  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) override {
    *object = nullptr;
    if (iid != kIidUnknown && iid != kIidDispatch) return status::kNoInterface;
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return status::kOk;
  }
  std::uint32_t KW_STDCALL AddRef() override { return ++references; }
  std::uint32_t KW_STDCALL Release() override { return --references; }
  HRESULT KW_STDCALL GetTypeInfoCount(std::uint32_t* count) override {
    *count = 0;
    return status::kOk;
  }
  HRESULT KW_STDCALL GetTypeInfo(std::uint32_t, LCID, ITypeInfo**) override {
    return status::kNotImplemented;
  }
  HRESULT KW_STDCALL GetIDsOfNames(const GUID&, OLECHAR** names, std::uint32_t, LCID,
                                   DISPID* ids) override {
    const auto found = properties_.find(names[0]);
    if (found == properties_.end()) return status::kUnknownName;
    ids[0] = static_cast<DISPID>(std::distance(properties_.begin(), found)) + 1;
    return status::kOk;
  }
  HRESULT KW_STDCALL Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags, DISPPARAMS*,
                            VARIANT* result, EXCEPINFO*, std::uint32_t*) override {
    if (!(flags & kDispatchPropertyGet)) return status::kMemberNotFound;
    const auto property = std::next(properties_.begin(), member - 1);
    reads.push_back(property->first);
    return VariantCopy(result, &property->second.raw());
  }

 private:
  std::map<std::u16string, Variant> properties_;
};

}  // namespace kw::testing
