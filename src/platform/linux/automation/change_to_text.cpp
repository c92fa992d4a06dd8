#include <algorithm>
#include <string_view>

#include "base/numeric_text.h"
#include "platform/linux/automation/change_type.h"

namespace kw::automation {
namespace {

HRESULT give(std::string_view text, VARIANT* result) {
  const BSTR made = SysAllocStringLen(nullptr, static_cast<std::uint32_t>(text.size()));
  if (made == nullptr) return status::kOutOfMemory;
  std::copy(text.begin(), text.end(), made);  // ASCII
  result->vt = kVtBstr;
  result->bstrVal = made;
  return status::kOk;
}

std::string_view boolean_text(bool value, std::uint16_t flags) {
  if (flags & (kChangeAlphaBool | kChangeLocalBool)) return value ? "True" : "False";
  return value ? "-1" : "0";
}

}  // namespace

HRESULT change_to_text(const VARIANT& source, std::uint16_t flags, VARIANT* result) {
  switch (source.vt) {
    case kVtEmpty:
      return give({}, result);
    case kVtI1:
      return give(write_number(std::int32_t{source.cVal}), result);
    case kVtI2:
      return give(write_number(std::int32_t{source.iVal}), result);
    case kVtI4:
    case kVtInt:
      return give(write_number(source.lVal), result);
    case kVtUi1:
      return give(write_number(std::int32_t{source.bVal}), result);
    case kVtUi2:
      return give(write_number(std::int32_t{source.uiVal}), result);
    case kVtUi4:
    case kVtUint:
      return give(write_number(static_cast<double>(source.ulVal)), result);
    case kVtR4:
      return give(write_number(source.fltVal), result);
    case kVtR8:
      return give(write_number(source.dblVal), result);
    case kVtBool:
      return give(boolean_text(source.boolVal != kVariantFalse, flags), result);
    default:
      return status::kTypeMismatch;
  }
}

}  // namespace kw::automation
