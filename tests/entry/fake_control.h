// A caller's control or form: an object that answers to the names it was given, in any case, and
// writes down what is asked of it.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/compare_text.h"
#include "kwutils/automation.h"
#include "kwutils/object.h"
#include "kwutils/variant.h"

namespace kw::testing {

// Lives on the stack; every reference to it must be gone before it is.
class FakeControl final : public IDispatch {
 public:
  explicit FakeControl(std::vector<std::u16string> names) : names_(std::move(names)) {
    values_.resize(names_.size());
  }
  Object object() { return Object::share(this); }
  void set(std::u16string_view name, Variant value) { values_[index_of(name)] = std::move(value); }
  Variant value(std::u16string_view name) { return values_[index_of(name)].copy(); }

  std::vector<std::u16string> log;  // "get Text", "set Text=1", "line(22,0,...)"
  std::u16string default_property;  // none when empty
  std::int32_t references = 0;

  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) override {
    *object = nullptr;
    if (iid != kIidUnknown && iid != kIidDispatch) return status::kNoInterface;
    *object = static_cast<IDispatch*>(this);
    AddRef();
    return status::kOk;
  }
  std::uint32_t KW_STDCALL AddRef() override { return static_cast<std::uint32_t>(++references); }
  std::uint32_t KW_STDCALL Release() override { return static_cast<std::uint32_t>(--references); }
  HRESULT KW_STDCALL GetTypeInfoCount(std::uint32_t* count) override {
    *count = 0;
    return status::kOk;
  }
  HRESULT KW_STDCALL GetTypeInfo(std::uint32_t, LCID, ITypeInfo**) override {
    return status::kNotImplemented;
  }
  HRESULT KW_STDCALL GetIDsOfNames(const GUID&, OLECHAR** names, std::uint32_t, LCID,
                                   DISPID* ids) override {
    const std::size_t index = index_of(names[0]);
    if (index == names_.size()) return status::kUnknownName;
    ids[0] = static_cast<DISPID>(index) + 1;
    return status::kOk;
  }
  HRESULT KW_STDCALL Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags,
                            DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                            std::uint32_t*) override {
    if (member == kDispidValue) return default_value(result);
    if (member < 1 || member > static_cast<DISPID>(names_.size())) return status::kMemberNotFound;
    const std::size_t index = static_cast<std::size_t>(member - 1);
    if ((flags & kDispatchPropertyPut) != 0) return put(index, parameters->rgvarg[0]);
    if ((flags & kDispatchPropertyGet) == 0) return call(index, *parameters);
    log.push_back(u"get " + names_[index]);
    return VariantCopy(result, &values_[index].raw());
  }

 private:
  std::size_t index_of(std::u16string_view name) const {
    std::size_t index = 0;
    while (index < names_.size() && !equal_text(names_[index], name)) ++index;
    return index;
  }
  static std::u16string text_of(const VARIANT& value) {
    return std::u16string(Variant::copy_of(value).text().view());
  }
  HRESULT default_value(VARIANT* result) {
    if (default_property.empty()) return status::kMemberNotFound;
    return VariantCopy(result, &values_[index_of(default_property)].raw());
  }
  HRESULT put(std::size_t index, const VARIANT& value) {
    log.push_back(u"set " + names_[index] + u"=" + text_of(value));
    values_[index] = Variant::copy_of(value);
    return status::kOk;
  }
  HRESULT call(std::size_t index, const DISPPARAMS& parameters) {
    std::u16string entry = names_[index] + u"(";
    for (std::uint32_t i = parameters.cArgs; i-- > 0;)
      entry += text_of(parameters.rgvarg[i]) + (i > 0 ? u"," : u")");
    log.push_back(std::move(entry));
    return status::kOk;
  }

  std::vector<std::u16string> names_;
  std::vector<Variant> values_;
};

inline FakeControl make_text_box(std::u16string_view text) {
  FakeControl box({u"Text", u"SelStart", u"SelLength"});
  box.default_property = u"Text";
  box.set(u"Text", Variant(String(text)));
  return box;
}

}  // namespace kw::testing
