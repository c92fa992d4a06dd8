#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "base/numeric_text.h"
#include "platform/linux/automation/change_type.h"

namespace kw::automation {
namespace {

std::u16string_view text_of(const VARIANT& value) {
  return value.bstrVal != nullptr ? std::u16string_view(value.bstrVal, SysStringLen(value.bstrVal))
                                  : std::u16string_view();
}

char16_t lower(char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; }

bool equals_ignoring_case(std::u16string_view text, std::u16string_view lower_case) {
  return std::equal(text.begin(), text.end(), lower_case.begin(), lower_case.end(),
                    [](char16_t a, char16_t b) { return lower(a) == b; });
}

std::optional<bool> boolean_word(std::u16string_view text) {
  if (equals_ignoring_case(text, u"true") || text == u"#TRUE#") return true;
  if (equals_ignoring_case(text, u"false") || text == u"#FALSE#") return false;
  return std::nullopt;
}

HRESULT number_in_text(std::u16string_view text, double* number) {
  const auto parsed = parse_number(text);
  if (!parsed) return status::kTypeMismatch;
  if (!std::isfinite(*parsed)) return status::kOverflow;
  *number = *parsed;
  return status::kOk;
}

// Every kind that can be a number has its values among those of a double.
HRESULT number_of(const VARIANT& source, double* number) {
  switch (source.vt) {
    case kVtEmpty:
      *number = 0;
      break;
    case kVtI1:
      *number = source.cVal;
      break;
    case kVtI2:
    case kVtBool:
      *number = source.iVal;
      break;
    case kVtI4:
    case kVtInt:
      *number = source.lVal;
      break;
    case kVtUi1:
      *number = source.bVal;
      break;
    case kVtUi2:
      *number = source.uiVal;
      break;
    case kVtUi4:
    case kVtUint:
      *number = source.ulVal;
      break;
    case kVtR4:
      *number = double{source.fltVal};
      break;
    case kVtR8:
      *number = source.dblVal;
      break;
    case kVtBstr:
      return number_in_text(text_of(source), number);
    default:
      return status::kTypeMismatch;
  }
  return status::kOk;
}

// Halves go to the even neighbour. No comparison holds for what is not a number.
template <typename T>
HRESULT store_whole(double number, T* target) {
  const double rounded = std::nearbyint(number);
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<T>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<T>::max());
  if (!fits) return status::kOverflow;
  *target = static_cast<T>(rounded);
  return status::kOk;
}

HRESULT store_single(double number, float* target) {
  if (std::abs(number) > double{std::numeric_limits<float>::max()}) return status::kOverflow;
  *target = static_cast<float>(number);
  return status::kOk;
}

HRESULT store(double number, VARTYPE kind, VARIANT* result) {
  switch (kind) {
    case kVtI1:
      return store_whole(number, &result->cVal);
    case kVtI2:
      return store_whole(number, &result->iVal);
    case kVtI4:
    case kVtInt:
      return store_whole(number, &result->lVal);
    case kVtUi1:
      return store_whole(number, &result->bVal);
    case kVtUi2:
      return store_whole(number, &result->uiVal);
    case kVtUi4:
    case kVtUint:
      return store_whole(number, &result->ulVal);
    case kVtR4:
      return store_single(number, &result->fltVal);
    case kVtR8:
      result->dblVal = number;
      return status::kOk;
    case kVtBool:
      result->boolVal = number != 0 ? kVariantTrue : kVariantFalse;
      return status::kOk;
    default:
      return status::kTypeMismatch;
  }
}

bool is_unsigned(VARTYPE kind) {
  return kind == kVtUi1 || kind == kVtUi2 || kind == kVtUi4 || kind == kVtUint;
}

}  // namespace

HRESULT change_to_number(const VARIANT& source, VARTYPE kind, VARIANT* result) {
  VARIANT made{};
  made.vt = kind;
  HRESULT changed = status::kOk;
  double number = 0;
  const auto word = kind == kVtBool && source.vt == kVtBstr ? boolean_word(text_of(source))
                                                            : std::optional<bool>();
  if (word) {
    made.boolVal = *word ? kVariantTrue : kVariantFalse;
  } else if (source.vt == kVtBool && source.boolVal != kVariantFalse && is_unsigned(kind)) {
    made.ulVal = kind == kVtUi1 ? 0xFF : kind == kVtUi2 ? 0xFFFF : 0xFFFFFFFF;  // True: all bits
  } else {
    changed = number_of(source, &number);
    if (succeeded(changed)) changed = store(number, kind, &made);
  }
  if (succeeded(changed)) *result = made;
  return changed;
}

}  // namespace kw::automation
