#include "kwutils/variant.h"

#include "kwutils/error.h"
#include "types/change_type.h"
#include "types/status.h"

namespace kw {
namespace {

// The object that an object variable refers to; null when it is not set.
IUnknown* object_of(const VARIANT& variable) {
  if ((variable.vt & kVtByRef) == 0) return variable.punkVal;
  return variable.ppunkVal != nullptr ? *variable.ppunkVal : nullptr;
}

}  // namespace

Variant::Variant(String text) noexcept : Variant() {
  value_.vt = kVtBstr;
  value_.bstrVal = text.release();
}

Variant::Variant(std::int16_t number) noexcept : Variant() {
  value_.vt = kVtI2;
  value_.iVal = number;
}

Variant::Variant(std::int32_t number) noexcept : Variant() {
  value_.vt = kVtI4;
  value_.lVal = number;
}

Variant::Variant(float number) noexcept : Variant() {
  value_.vt = kVtR4;
  value_.fltVal = number;
}

Variant::Variant(double number) noexcept : Variant() {
  value_.vt = kVtR8;
  value_.dblVal = number;
}

Variant::Variant(Boolean value) noexcept : Variant() {
  value_.vt = kVtBool;
  value_.boolVal = value.bits();
}

Variant::Variant(Object object) noexcept : Variant() {
  value_.vt = kVtDispatch;
  value_.pdispVal = object.release();
}

Variant Variant::missing() noexcept {
  Variant result;
  result.value_.vt = kVtError;
  result.value_.scode = status::kParameterNotFound;
  return result;
}

Variant Variant::copy_of(const VARIANT& value) {
  Variant result;
  check_status(VariantCopyInd(&result.value_, &value));
  return result;
}

VARIANT Variant::release() noexcept {
  VARIANT result = value_;
  value_.vt = kVtEmpty;
  return result;
}

const VARIANT& Variant::contents() const noexcept {
  const VARIANT* value = &value_;
  while (value->vt == (kVtByRef | kVtVariant) && value->pvarVal != nullptr) value = value->pvarVal;
  return *value;
}

void Variant::store(Object object) {
  VARIANT& target = const_cast<VARIANT&>(contents());
  if (target.vt == (kVtByRef | kVtDispatch)) {
    Object::attach(std::exchange(*target.ppdispVal, object.release()));
    return;
  }
  if ((target.vt & kVtByRef) != 0) throw Error(ErrorNumber::type_mismatch);
  reinterpret_cast<Variant&>(target) = Variant(std::move(object));
}

void Variant::store(String text) {
  VARIANT& target = const_cast<VARIANT&>(contents());
  if (target.vt == (kVtByRef | kVtBstr)) {
    String::attach(std::exchange(*target.pbstrVal, text.release()));
    return;
  }
  if ((target.vt & kVtByRef) != 0) throw Error(ErrorNumber::type_mismatch);
  reinterpret_cast<Variant&>(target) = Variant(std::move(text));
}

bool Variant::is_missing() const noexcept {
  const VARIANT& value = contents();
  return value.vt == kVtError && value.scode == status::kParameterNotFound;
}

bool Variant::is_object() const noexcept {
  const VARTYPE kind = contents().vt & ~kVtByRef;
  return kind == kVtDispatch || kind == kVtUnknown;
}

Variant Variant::converted(VARTYPE kind) const {
  if (is_object() && object_of(contents()) == nullptr) throw Error(ErrorNumber::object_not_set);
  Variant result;
  check_status(change_type(result.value_, value_, kind));
  return result;
}

String Variant::text() const {
  const VARIANT& value = contents();
  if (value.vt == kVtBstr)
    return String(std::u16string_view(value.bstrVal, SysStringLen(value.bstrVal)));
  Variant result = converted(kVtBstr);
  return String::attach(result.release().bstrVal);
}

std::u16string_view Variant::text(String& scratch) const {
  const VARIANT& value = contents();
  if (value.vt == kVtBstr) return {value.bstrVal, SysStringLen(value.bstrVal)};
  scratch = text();
  return scratch;
}

std::int16_t Variant::to_int16() const {
  if (contents().vt == kVtI2) return contents().iVal;
  return converted(kVtI2).value_.iVal;
}

std::int32_t Variant::to_int32() const {
  if (contents().vt == kVtI4) return contents().lVal;
  return converted(kVtI4).value_.lVal;
}

float Variant::to_single() const { return converted(kVtR4).value_.fltVal; }

double Variant::to_double() const { return converted(kVtR8).value_.dblVal; }

Boolean Variant::to_boolean() const {
  return Boolean::from_bits(converted(kVtBool).value_.boolVal);
}

Object Variant::to_object() const {
  if (!is_object()) throw Error(ErrorNumber::type_mismatch);
  IUnknown* object = object_of(contents());
  if (object == nullptr) throw Error(ErrorNumber::object_not_set);
  void* late_bound = nullptr;
  if (object->QueryInterface(kIidDispatch, &late_bound) < 0)
    throw Error(ErrorNumber::no_such_member);
  return Object::attach(static_cast<IDispatch*>(late_bound));
}

}  // namespace kw
