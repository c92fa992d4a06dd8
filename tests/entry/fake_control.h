// A caller's control or form: an object that answers to the names it was given, in any case, and
// writes down what is asked of it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/compare_text.h"
#include "kwutils/object.h"
#include "kwutils/variant.h"
#include "support/fake_dispatch.h"
#include "support/texts.h"

namespace kw::testing {

// Lives on the stack; every reference to it must be gone before it is.
class FakeControl final : public FakeDispatch {
 public:
  explicit FakeControl(std::vector<std::u16string> names)
      : FakeDispatch(0), names_(std::move(names)) {
    values_.resize(names_.size());
  }
  Object object() { return Object::share(this); }
  void set(std::u16string_view name, Variant value) { values_[index_of(name)] = std::move(value); }
  Variant value(std::u16string_view name) { return values_[index_of(name)].copy(); }

  std::vector<std::u16string> log;  // "get Text", "set Text=1", "line(22,0,...)"
  std::u16string default_property;  // none when empty

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
  DISPID id_of(std::u16string_view name) const override {
    const std::size_t index = index_of(name);
    return index == names_.size() ? kDispidUnknown : static_cast<DISPID>(index) + 1;
  }
  static std::u16string text_of(const VARIANT& value) {
    return testing::text_of(Variant::copy_of(value).text());
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
