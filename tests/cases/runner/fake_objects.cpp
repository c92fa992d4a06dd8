#include "fake_objects.h"

#include <cmath>

#include "fields.h"
#include "frame/member_names.h"
#include "kwutils/error.h"

namespace kw::cases {
namespace {

using Names = std::vector<std::string>;

Names names_of(const std::string& kind) {
  const Names drawing = {"Left",     "Top",       "Width",     "Height",      "DrawStyle",
                         "DrawMode", "ScaleMode", "DrawWidth", "ScaleHeight", "line"};
  if (kind == "textbox") return {"Text", "SelStart", "SelLength"};
  if (kind == "label") return {"Caption"};
  if (kind == "option") return {"Value", "Index"};
  if (kind == "picture") return drawing;
  if (kind.empty()) return {};
  if (kind != "form") throw Malformed("unknown kind of object: " + kind);
  Names names = drawing;
  names.push_back("WindowState");
  return names;
}

// Walks the members of a group.
class GroupMembers final : public IEnumVARIANT {
 public:
  explicit GroupMembers(const std::vector<Object>& members) : members_(members) {}
  virtual ~GroupMembers() = default;
  HRESULT KW_STDCALL QueryInterface(const GUID& iid, void** object) override {
    const bool known = iid == kIidUnknown || iid == kIidEnumVariant;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? status::kOk : status::kNoInterface;
  }
  std::uint32_t KW_STDCALL AddRef() override { return ++references_; }
  std::uint32_t KW_STDCALL Release() override {
    const std::uint32_t left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT KW_STDCALL Next(std::uint32_t count, VARIANT* values, std::uint32_t* fetched) override {
    std::uint32_t given = 0;
    for (; given < count && next_ < members_.size(); ++given)
      values[given] = Variant(members_[next_++]).release();
    if (fetched != nullptr) *fetched = given;
    return given == count ? status::kOk : status::kFalse;
  }
  HRESULT KW_STDCALL Skip(std::uint32_t count) override {
    next_ += count;
    return status::kOk;
  }
  HRESULT KW_STDCALL Reset() override {
    next_ = 0;
    return status::kOk;
  }
  HRESULT KW_STDCALL Clone(IEnumVARIANT** copy) override {
    *copy = new GroupMembers(members_);
    return status::kOk;
  }

 private:
  std::vector<Object> members_;
  std::size_t next_ = 0;
  std::uint32_t references_ = 1;
};

class Group final : public FakeObject {
 public:
  explicit Group(std::vector<Object> members)
      : FakeObject("", Json::object()), members_(std::move(members)) {}
  HRESULT KW_STDCALL Invoke(DISPID member, const GUID& reserved, LCID locale, std::uint16_t flags,
                            DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                            std::uint32_t* bad) override {
    if (member != kDispidNewEnum)
      return FakeObject::Invoke(member, reserved, locale, flags, parameters, result, exception,
                                bad);
    result->vt = kVtUnknown;
    result->punkVal = new GroupMembers(members_);
    return status::kOk;
  }

 private:
  std::vector<Object> members_;
};

}  // namespace

Variant variant_of(const Json& value) {
  if (value.is_null()) return {};
  if (value.is_string()) return Variant(std::u16string_view(units(value)));
  if (value.is_boolean()) return Variant(Boolean(value.get<bool>()));
  if (!value.is_number()) throw Malformed("neither a text nor a number: a list or an object");
  const double number = value.get<double>();
  if (!value.is_number_integer() || std::abs(number) > INT32_MAX) return Variant(number);
  if (number >= INT16_MIN && number <= INT16_MAX) return Variant(static_cast<std::int16_t>(number));
  return Variant(static_cast<std::int32_t>(number));
}

Json json_of(const VARIANT& raw) {
  const Variant value = Variant::copy_of(raw);
  switch (value.raw().vt) {
    case kVtBstr:
      return json_text(value.text());
    case kVtBool:
      return static_cast<bool>(value.to_boolean());
    case kVtI2:
    case kVtI4:
      return value.to_int32();
    case kVtR4:
    case kVtR8: {
      const double number = value.to_double();
      if (number == std::floor(number) && std::abs(number) < 9e15)
        return static_cast<std::int64_t>(number);
      return number;
    }
    default:
      return nullptr;
  }
}

FakeObject::FakeObject(const std::string& kind, const Json& properties)
    : FakeDispatch(1), names_(names_of(kind)), default_is_text_(kind == "textbox") {
  if (!properties.is_object()) throw Malformed("the properties of an object: no JSON object");
  for (const auto& [name, value] : properties.items()) values_[name] = variant_of(value);
}

FakeObject::~FakeObject() = default;

std::uint32_t FakeObject::Release() {
  const std::uint32_t left = FakeDispatch::Release();
  if (left == 0) delete this;
  return left;
}

DISPID FakeObject::id_of(std::u16string_view name) const {
  for (std::size_t i = 0; i < names_.size(); ++i)
    if (frame::same_name(name, names_[i])) return static_cast<DISPID>(i + 1);
  return kDispidUnknown;
}

HRESULT FakeObject::get(const std::string& name, VARIANT* result) {
  const auto found = values_.find(name);
  if (found == values_.end()) return status::kMemberNotFound;
  if (result != nullptr) *result = found->second.copy().release();
  return status::kOk;
}

HRESULT FakeObject::call(const DISPPARAMS& parameters) {
  Json entry = {"call", "line"};
  for (std::uint32_t i = parameters.cArgs; i-- > 0;) entry.push_back(json_of(parameters.rgvarg[i]));
  log_.push_back(std::move(entry));
  return status::kOk;
}

HRESULT FakeObject::Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags,
                           DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*, std::uint32_t*) {
  if (member == kDispidValue)
    return default_is_text_ ? get("Text", result) : status::kMemberNotFound;
  if (member < 1 || member > static_cast<DISPID>(names_.size())) return status::kMemberNotFound;
  const std::string& name = names_[static_cast<std::size_t>(member - 1)];
  if (name == "line") return call(*parameters);
  if ((flags & (kDispatchPropertyPut | kDispatchPropertyPutRef)) != 0) {
    log_.push_back({"set", name, json_of(parameters->rgvarg[0])});
    values_[name] = Variant::copy_of(parameters->rgvarg[0]);
    return status::kOk;
  }
  log_.push_back({"get", name});
  return get(name, result);
}

Object make_group(const Json& members) {
  if (!members.is_array()) throw Malformed("the members of a group: no list");
  std::vector<Object> controls;
  for (const Json& member : members)
    controls.push_back(Object::attach(new FakeObject("option", member)));
  return Object::attach(new Group(std::move(controls)));
}

}  // namespace kw::cases
