// The caller's own objects as cases describe them: controls, forms, groups, objects without a text.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "json_text.h"
#include "kwutils/object.h"
#include "kwutils/variant.h"
#include "support/fake_dispatch.h"

namespace kw::cases {

// What an object was asked, in order: ["get",name], ["set",name,value], ["call","line",...].
using Log = std::vector<Json>;

// An object that answers to the names of its kind, and to nothing else. Reading a property that has
// no value is error 438.
class FakeObject : public testing::FakeDispatch {
 public:
  // `kind`: textbox, label, form, picture, option, or "" for an object that answers to nothing.
  // Throws Malformed for any other.
  FakeObject(const std::string& kind, const Json& properties);
  virtual ~FakeObject();

  const Log& log() const { return log_; }
  const std::map<std::string, Variant>& properties() const { return values_; }

  std::uint32_t KW_STDCALL Release() override;
  HRESULT KW_STDCALL Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags,
                            DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                            std::uint32_t* bad_argument) override;

 private:
  DISPID id_of(std::u16string_view name) const override;
  HRESULT get(const std::string& name, VARIANT* result);
  HRESULT call(const DISPPARAMS& parameters);

  std::vector<std::string> names_;
  std::map<std::string, Variant> values_;
  bool default_is_text_ = false;
  Log log_;
};

// A group of option controls, for a host's "for each".
Object make_group(const Json& members);

// A JSON value as a caller's variant, and back. Throws Malformed for a list or an object.
Variant variant_of(const Json& value);
Json json_of(const VARIANT& value);

}  // namespace kw::cases
