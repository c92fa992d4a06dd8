#include "types/change_type.h"

#include <cmath>

#include "types/status.h"

namespace kw {
namespace {

bool is_whole(VARTYPE kind) {
  switch (kind) {
    case kVtI1:
    case kVtI2:
    case kVtI4:
    case kVtI8:
    case kVtInt:
    case kVtUi1:
    case kVtUi2:
    case kVtUi4:
    case kVtUi8:
    case kVtUint:
      return true;
    default:
      return false;
  }
}

bool is_no_number(const VARIANT& given) {
  const VARIANT& value = given.vt == (kVtByRef | kVtVariant) ? *given.pvarVal : given;
  switch (value.vt) {
    case kVtR4:
      return std::isnan(value.fltVal);
    case kVtR8:
      return std::isnan(value.dblVal);
    case kVtByRef | kVtR4:
      return std::isnan(*value.pfltVal);
    case kVtByRef | kVtR8:
      return std::isnan(*value.pdblVal);
    default:
      return false;
  }
}

}  // namespace

HRESULT change_type(VARIANT& to, const VARIANT& from, VARTYPE kind) noexcept {
  // Some systems give what is no number as some whole one.
  if (is_whole(kind) && is_no_number(from)) return status::kOverflow;
  return VariantChangeType(&to, &from, kChangeAlphaBool, kind);
}

}  // namespace kw
