// Variants: ending and copying them.
#include <cstring>

#include "platform/linux/automation/kinds.h"
#include "platform/linux/automation/variant_view.h"

namespace kw {
namespace automation {
namespace {

constexpr VARTYPE kVariantByRef = kVtVariant | kVtByRef;

HRESULT view_variant(const VARIANT& target, VARIANT* view) {
  if (target.vt == kVariantByRef) return status::kInvalidArgument;
  return view_contents(target, view);
}

// A decimal fills a variant from its first byte on.
void view_decimal(const void* target, VARIANT* view) {
  std::memcpy(view, target, element_size(kVtDecimal));
  view->vt = kVtDecimal;
}

}  // namespace

HRESULT view_contents(const VARIANT& source, VARIANT* view) {
  if (!is_variant_kind(source.vt)) return status::kBadVariableType;
  *view = source;
  if (!(source.vt & kVtByRef)) return status::kOk;
  if (source.byref == nullptr) return status::kInvalidArgument;
  if (source.vt == kVariantByRef) return view_variant(*source.pvarVal, view);
  VARIANT plain{};
  plain.vt = static_cast<VARTYPE>(source.vt & ~unsigned{kVtByRef});
  if (plain.vt == kVtDecimal) {
    view_decimal(source.byref, &plain);
  } else if (plain.vt & kVtArray) {
    plain.parray = *source.pparray;
  } else {
    std::memcpy(&plain.llVal, source.byref, element_size(plain.vt));
  }
  *view = plain;
  return status::kOk;
}

namespace {

HRESULT copy_text(BSTR text, VARIANT* copy) {
  if (text == nullptr) return status::kOk;
  copy->bstrVal =
      SysAllocStringByteLen(reinterpret_cast<const char*>(text), SysStringByteLen(text));
  return copy->bstrVal != nullptr ? status::kOk : status::kOutOfMemory;
}

// Makes a shallow copy own what it holds.
HRESULT take_ownership(VARIANT* copy) {
  if (copy->vt & kVtByRef) return status::kOk;
  if (copy->vt & kVtArray) return SafeArrayCopy(copy->parray, &copy->parray);
  if (copy->vt == kVtBstr) return copy_text(copy->bstrVal, copy);
  if ((copy->vt == kVtDispatch || copy->vt == kVtUnknown) && copy->punkVal != nullptr) {
    copy->punkVal->AddRef();
  }
  return status::kOk;
}

// The copy is complete before the target ends: the source may live inside the target.
HRESULT replace_by_copy(VARIANT* target, const VARIANT& source) {
  VARIANT copy = source;
  const HRESULT copied = take_ownership(&copy);
  if (failed(copied)) return copied;
  const HRESULT cleared = VariantClear(target);
  if (failed(cleared)) {
    VariantClear(&copy);
    return cleared;
  }
  *target = copy;
  return status::kOk;
}

}  // namespace
}  // namespace automation

void VariantInit(VARIANT* value) {
  if (value != nullptr) *value = VARIANT{};
}

HRESULT VariantClear(VARIANT* value) {
  if (value == nullptr) return status::kInvalidArgument;
  if (!automation::is_variant_kind(value->vt)) return status::kBadVariableType;
  const VARIANT old = *value;
  const bool array = (old.vt & kVtArray) && !(old.vt & kVtByRef);
  if (array) {
    const HRESULT destroyed = SafeArrayDestroy(old.parray);
    if (failed(destroyed)) return destroyed;
  }
  // Empty before anything is released: an object that ends may look at this variable.
  *value = VARIANT{};
  if (old.vt == kVtBstr) SysFreeString(old.bstrVal);
  if ((old.vt == kVtDispatch || old.vt == kVtUnknown) && old.punkVal != nullptr) {
    old.punkVal->Release();
  }
  return status::kOk;
}

HRESULT VariantCopy(VARIANT* target, const VARIANT* source) {
  if (target == nullptr || source == nullptr) return status::kInvalidArgument;
  if (!automation::is_variant_kind(source->vt)) return status::kBadVariableType;
  if (target == source) return status::kOk;
  return automation::replace_by_copy(target, *source);
}

HRESULT VariantCopyInd(VARIANT* target, const VARIANT* source) {
  if (target == nullptr || source == nullptr) return status::kInvalidArgument;
  VARIANT view;
  const HRESULT viewed = automation::view_contents(*source, &view);
  if (failed(viewed)) return viewed;
  if (target == source && !(source->vt & kVtByRef)) return status::kOk;
  return automation::replace_by_copy(target, view);
}

}  // namespace kw
