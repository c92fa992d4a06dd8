// A caller's form: an object that answers to the names it was given and writes down what is asked.
#pragma once

#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "kwutils/object.h"
#include "kwutils/variant.h"
#include "support/fake_dispatch.h"

namespace kw::testing {

// Lives on the stack; every reference to it must be gone before it is.
class FakeForm final : public FakeDispatch {
 public:
  FakeForm() : FakeDispatch(0) {}
  void set(const std::u16string& name, Variant value) { properties_[name] = std::move(value); }
  Variant variable() { return Variant(Object::share(this)); }

  std::vector<std::u16string> reads;

  HRESULT KW_STDCALL Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags, DISPPARAMS*,
                            VARIANT* result, EXCEPINFO*, std::uint32_t*) override {
    if (!(flags & kDispatchPropertyGet)) return status::kMemberNotFound;
    const auto property = std::next(properties_.begin(), member - 1);
    reads.push_back(property->first);
    return VariantCopy(result, &property->second.raw());
  }

 private:
  DISPID id_of(std::u16string_view name) const override {
    const auto found = properties_.find(std::u16string(name));
    if (found == properties_.end()) return kDispidUnknown;
    return static_cast<DISPID>(std::distance(properties_.begin(), found)) + 1;
  }

  std::map<std::u16string, Variant> properties_;
};

}  // namespace kw::testing
