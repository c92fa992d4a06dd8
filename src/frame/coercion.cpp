#include "frame/coercion.h"

#include <cstring>
#include <utility>

#include "types/change_type.h"

namespace kw::frame {
namespace {

VARTYPE plain_kind(VARTYPE kind) { return static_cast<VARTYPE>(kind & ~kVtByRef); }

// Moves a value of the variable's own kind into the variable that `target` refers to.
void store_typed(VARIANT& target, VARIANT value) noexcept {
  switch (plain_kind(target.vt)) {
    case kVtBstr:
      SysFreeString(std::exchange(*target.pbstrVal, value.bstrVal));
      return;
    case kVtDispatch:
    case kVtUnknown: {
      IUnknown* old = std::exchange(*target.ppunkVal, value.punkVal);
      if (old != nullptr) old->Release();
      return;
    }
    case kVtI2:
    case kVtUi2:
    case kVtBool:
      *target.piVal = value.iVal;
      return;
    case kVtI1:
    case kVtUi1:
      *target.pcVal = value.cVal;
      return;
    case kVtI8:
    case kVtUi8:
    case kVtR8:
    case kVtDate:
    case kVtCy:
      *target.pllVal = value.llVal;
      return;
    case kVtDecimal: {
      // It fills a variant from its reserved word on, which is the variant's kind.
      constexpr std::size_t kSize = 16, kReserved = sizeof value.vt;
      std::memcpy(static_cast<char*>(target.byref) + kReserved,
                  reinterpret_cast<const char*>(&value) + kReserved, kSize - kReserved);
      return;
    }
    default:
      *target.plVal = value.lVal;
      return;
  }
}

bool holds_nothing_yet(const VARIANT& variable) {
  return variable.vt == kVtEmpty || variable.vt == kVtNull || variable.vt == kVtError;
}

}  // namespace

VARIANT& variable_of(VARIANT& argument) noexcept {
  VARIANT* value = &argument;
  while (value->vt == (kVtByRef | kVtVariant) && value->pvarVal != nullptr) value = value->pvarVal;
  return *value;
}

bool is_variable(const VARIANT& argument) noexcept { return (argument.vt & kVtByRef) != 0; }

void* storage_of(VARIANT& argument, VARTYPE kind) noexcept {
  VARIANT& variable = variable_of(argument);
  if (variable.vt == (kind | kVtByRef)) return variable.byref;
  if (variable.vt == kind && &variable != &argument) return &variable.llVal;
  return nullptr;
}

void* readable_storage_of(VARIANT& argument, VARTYPE kind) noexcept {
  VARIANT& variable = variable_of(argument);
  if (variable.vt == kind) return &variable.llVal;
  return variable.vt == (kind | kVtByRef) ? variable.byref : nullptr;
}

Variant coerced(const VARIANT& argument, VARTYPE kind) {
  Variant result;
  const HRESULT changed = change_type(*result.address(), argument, kind);
  // An object variable that is not set has no value of any kind.
  if (changed == status::kBadVariableType) throw Refused{status::kTypeMismatch};
  if (changed < 0) throw Refused{changed};
  return result;
}

Object object_in(const VARIANT& argument) {
  const VARIANT& value = variable_of(const_cast<VARIANT&>(argument));
  if (holds_nothing_yet(value)) return {};
  const VARTYPE kind = plain_kind(value.vt);
  if (kind != kVtDispatch && kind != kVtUnknown) throw Refused{status::kTypeMismatch};
  IUnknown* object = value.punkVal;
  if (is_variable(value)) object = value.ppunkVal != nullptr ? *value.ppunkVal : nullptr;
  if (object == nullptr) return {};
  if (kind == kVtDispatch) return Object::share(static_cast<IDispatch*>(object));
  void* late_bound = nullptr;
  if (object->QueryInterface(kIidDispatch, &late_bound) < 0) throw Refused{status::kTypeMismatch};
  return Object::attach(static_cast<IDispatch*>(late_bound));
}

void write_back(VARIANT& argument, Variant value) {
  VARIANT& variable = variable_of(argument);
  if (is_variable(variable)) {
    Variant typed;
    const VARTYPE kind = plain_kind(variable.vt);
    const HRESULT changed = change_type(*typed.address(), value.raw(), kind);
    if (changed < 0) throw Refused{changed};
    return store_typed(variable, typed.release());
  }
  Variant own;
  if (!holds_nothing_yet(variable) && change_type(*own.address(), value.raw(), variable.vt) >= 0)
    value = std::move(own);
  VariantClear(&variable);
  variable = value.release();
}

}  // namespace kw::frame
