// Objects for the tests of the automation functions: they count their references on the stack.
#pragma once

#include "support/fake_dispatch.h"

namespace kw::test {

// An object with a default value (its dispatch number 0), or without one.
class ValueObject final : public testing::FakeDispatch {
 public:
  ValueObject() : FakeDispatch(1) {}
  explicit ValueObject(const VARIANT& value) : ValueObject() { set_value(value); }

  // Borrows what the value holds.
  void set_value(const VARIANT& value) {
    value_ = value;
    has_value_ = true;
  }

  std::uint32_t reads = 0;

  HRESULT KW_STDCALL Invoke(DISPID member, const GUID&, LCID, std::uint16_t flags, DISPPARAMS*,
                            VARIANT* result, EXCEPINFO*, std::uint32_t*) override {
    ++reads;
    if (member != kDispidValue || !(flags & kDispatchPropertyGet) || !has_value_) {
      return status::kMemberNotFound;
    }
    return VariantCopy(result, &value_);
  }

 private:
  DISPID id_of(std::u16string_view) const override { return kDispidUnknown; }

  VARIANT value_{};
  bool has_value_ = false;
};

inline VARIANT variant_of(std::int32_t value) {
  VARIANT made{};
  made.vt = kVtI4;
  made.lVal = value;
  return made;
}

inline VARIANT variant_of(double value) {
  VARIANT made{};
  made.vt = kVtR8;
  made.dblVal = value;
  return made;
}

inline VARIANT variant_of(float value) {
  VARIANT made{};
  made.vt = kVtR4;
  made.fltVal = value;
  return made;
}

inline VARIANT variant_of(bool value) {
  VARIANT made{};
  made.vt = kVtBool;
  made.boolVal = value ? kVariantTrue : kVariantFalse;
  return made;
}

inline VARIANT variant_of(const char16_t* text) {
  VARIANT made{};
  made.vt = kVtBstr;
  made.bstrVal = SysAllocString(text);
  return made;
}

inline VARIANT variant_of(IDispatch* object) {
  VARIANT made{};
  made.vt = kVtDispatch;
  made.pdispVal = object;
  if (object != nullptr) object->AddRef();
  return made;
}

inline VARIANT reference_to(VARTYPE kind, void* target) {
  VARIANT made{};
  made.vt = static_cast<VARTYPE>(kind | kVtByRef);
  made.byref = target;
  return made;
}

}  // namespace kw::test
