#include "platform/linux/automation/change_type.h"

#include "platform/linux/automation/kinds.h"
#include "platform/linux/automation/variant_view.h"

namespace kw {
namespace automation {
namespace {

struct Change {
  LCID locale;
  std::uint16_t flags;
  VARTYPE kind;
};

// How often the value of an object may be an object again.
constexpr int kMostObjects = 8;

HRESULT change(const VARIANT& source, const Change& wanted, int objects_left, VARIANT* result);

bool is_object(VARTYPE kind) { return kind == kVtDispatch || kind == kVtUnknown; }

bool is_array_or_reference(VARTYPE kind) { return kind & (unsigned{kVtArray} | kVtByRef); }

// Empty and Null can be made of whatever has a value.
HRESULT change_to_nothing(const VARIANT& source, VARTYPE kind, VARIANT* result) {
  if (source.vt == kVtError || (source.vt == kVtNull && kind == kVtEmpty)) {
    return status::kTypeMismatch;
  }
  result->vt = kind;
  return status::kOk;
}

HRESULT change_interface(const VARIANT& source, VARTYPE kind, VARIANT* result) {
  VARIANT made{};
  made.vt = kind;
  if (source.punkVal != nullptr) {
    void* object = nullptr;
    const GUID& iid = kind == kVtDispatch ? kIidDispatch : kIidUnknown;
    if (failed(source.punkVal->QueryInterface(iid, &object))) return status::kTypeMismatch;
    if (kind == kVtDispatch) {
      made.pdispVal = static_cast<IDispatch*>(object);
    } else {
      made.punkVal = static_cast<IUnknown*>(object);
    }
  }
  *result = made;
  return status::kOk;
}

HRESULT change_default_value(IDispatch* object, const Change& wanted, int objects_left,
                             VARIANT* result) {
  if (object == nullptr) return status::kBadVariableType;
  if (objects_left == 0) return status::kTypeMismatch;
  DISPPARAMS none{};
  VARIANT value{};
  const HRESULT got = object->Invoke(kDispidValue, kNullGuid, wanted.locale, kDispatchPropertyGet,
                                     &none, &value, nullptr, nullptr);
  VARIANT view{};
  HRESULT changed = status::kTypeMismatch;
  if (succeeded(got) && succeeded(view_contents(value, &view))) {
    changed = change(view, wanted, objects_left - 1, result);
  }
  VariantClear(&value);
  return changed;
}

HRESULT change_object(const VARIANT& source, const Change& wanted, int objects_left,
                      VARIANT* result) {
  if (is_object(wanted.kind)) return change_interface(source, wanted.kind, result);
  if (source.vt == kVtUnknown || (wanted.flags & kChangeNoValueProperty)) {
    return status::kTypeMismatch;
  }
  return change_default_value(source.pdispVal, wanted, objects_left, result);
}

HRESULT change(const VARIANT& source, const Change& wanted, int objects_left, VARIANT* result) {
  const VARTYPE kind = wanted.kind;
  if (source.vt == kind) return VariantCopy(result, &source);
  if (is_array_or_reference(source.vt) || is_array_or_reference(kind)) {
    return status::kTypeMismatch;
  }
  if (kind == kVtEmpty || kind == kVtNull) return change_to_nothing(source, kind, result);
  if (is_object(source.vt)) return change_object(source, wanted, objects_left, result);
  if (kind == kVtBstr) return change_to_text(source, wanted.flags, result);
  return change_to_number(source, kind, result);
}

}  // namespace
}  // namespace automation

HRESULT VariantChangeTypeEx(VARIANT* target, const VARIANT* source, LCID locale,
                            std::uint16_t flags, VARTYPE kind) {
  if (target == nullptr || source == nullptr) return status::kInvalidArgument;
  if (!automation::is_variant_kind(kind) && kind != kVtVariant) return status::kBadVariableType;
  VARIANT view{};
  HRESULT result = automation::view_contents(*source, &view);
  if (failed(result)) return result;
  VARIANT made{};
  result = automation::change(view, {locale, flags, kind}, automation::kMostObjects, &made);
  if (failed(result)) return result;
  result = VariantClear(target);
  if (failed(result)) {
    VariantClear(&made);
  } else {
    *target = made;
  }
  return result;
}

HRESULT VariantChangeType(VARIANT* target, const VARIANT* source, std::uint16_t flags,
                          VARTYPE kind) {
  constexpr LCID kUserDefault = 0x0400;
  return VariantChangeTypeEx(target, source, kUserDefault, flags, kind);
}

}  // namespace kw
