#include "platform/linux/automation/kinds.h"

namespace kw::automation {

std::uint32_t element_size(VARTYPE kind) {
  switch (kind) {
    case kVtI1:
    case kVtUi1:
      return 1;
    case kVtI2:
    case kVtUi2:
    case kVtBool:
      return 2;
    case kVtI4:
    case kVtUi4:
    case kVtInt:
    case kVtUint:
    case kVtR4:
    case kVtError:
      return 4;
    case kVtR8:
    case kVtCy:
    case kVtDate:
    case kVtI8:
    case kVtUi8:
      return 8;
    case kVtBstr:
    case kVtDispatch:
    case kVtUnknown:
      return sizeof(void*);
    case kVtVariant:
      return sizeof(VARIANT);
    case kVtDecimal:
      return 16;
    default:
      return 0;
  }
}

std::uint16_t element_features(VARTYPE kind) {
  switch (kind) {
    case kVtBstr:
      return kFeatureHaveVartype | kFeatureBstr;
    case kVtVariant:
      return kFeatureHaveVartype | kFeatureVariant;
    case kVtDispatch:
      return kFeatureHaveIid | kFeatureDispatch;
    case kVtUnknown:
      return kFeatureHaveIid | kFeatureUnknown;
    default:
      return kFeatureHaveVartype;
  }
}

bool is_variant_kind(VARTYPE kind) {
  constexpr unsigned kModifiers = kVtArray | kVtByRef;
  const auto base = static_cast<VARTYPE>(kind & ~kModifiers);
  const bool modified = base != kind;
  if (base == kVtEmpty || base == kVtNull) return !modified;
  if (base == kVtVariant) return modified;
  return element_size(base) != 0;
}

}  // namespace kw::automation
