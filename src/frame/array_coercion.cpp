#include "frame/array_coercion.h"

#include <algorithm>
#include <utility>

#include "kwutils/variant.h"
#include "types/array_size.h"

namespace kw::frame {
namespace {

// Destroys an array that is not handed on.
class Owned {
 public:
  explicit Owned(SAFEARRAY* array) : array_(array) {
    if (array == nullptr) throw Refused{status::kOutOfMemory};
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() {
    if (array_ != nullptr) SafeArrayDestroy(array_);
  }
  SAFEARRAY* get() const { return array_; }
  SAFEARRAY* release() { return std::exchange(array_, nullptr); }

 private:
  SAFEARRAY* array_;
};

SAFEARRAY* array_in(const VARIANT& variable) {
  if (!is_variable(variable)) return variable.parray;
  return variable.pparray != nullptr ? *variable.pparray : nullptr;
}

SAFEARRAY* same_bounds(const SAFEARRAY* array, VARTYPE element) {
  SAFEARRAYBOUND bound = array->rgsabound[0];
  if (!array_fits(element, bound.cElements)) return nullptr;
  return SafeArrayCreate(element, 1, &bound);
}

bool has_fixed_bounds(const SAFEARRAY& array) {
  return array.cLocks != 0 || (array.fFeatures & (kFeatureFixedSize | kFeatureStatic)) != 0;
}

char* element_at(const SAFEARRAY* array, std::size_t index) {
  return static_cast<char*>(array->pvData) + index * array->cbElements;
}

// The value of an element, as a variant that refers to it.
VARIANT reference_to(const SAFEARRAY* array, VARTYPE element, std::size_t index) {
  VARIANT value = {};
  value.vt = static_cast<VARTYPE>(element | kVtByRef);
  value.byref = element_at(array, index);
  return value;
}

VARTYPE element_kind(const SAFEARRAY* array) {
  VARTYPE kind = kVtEmpty;
  SafeArrayGetVartype(const_cast<SAFEARRAY*>(array), &kind);
  return kind;
}

void convert_into(SAFEARRAY* typed, VARTYPE element, const SAFEARRAY* values, std::size_t index) {
  const VARIANT source = reference_to(values, kVtVariant, index);
  VARIANT converted = coerced(source, element).release();
  std::copy_n(reinterpret_cast<const char*>(&converted.llVal), typed->cbElements,
              element_at(typed, index));
}

// Both hold variants.
void swap_elements(SAFEARRAY& left, SAFEARRAY& right) {
  const std::size_t count = std::min(left.rgsabound[0].cElements, right.rgsabound[0].cElements);
  auto* const first = static_cast<VARIANT*>(left.pvData);
  std::swap_ranges(first, first + count, static_cast<VARIANT*>(right.pvData));
}

}  // namespace

SAFEARRAY* typed_array(const VARIANT& argument, VARTYPE element) {
  const VARIANT& variable = variable_of(const_cast<VARIANT&>(argument));
  if (variable.vt == kVtEmpty) return nullptr;
  if ((variable.vt & kVtArray) == 0) throw Refused{status::kTypeMismatch};
  SAFEARRAY* values = array_in(variable);
  if (values == nullptr || values->cDims == 0) return nullptr;
  const auto kind = static_cast<VARTYPE>(variable.vt & kVtTypeMask);
  if (kind == element) {
    SAFEARRAY* copy = nullptr;
    if (SafeArrayCopy(values, &copy) < 0) throw Refused{status::kOutOfMemory};
    return copy;
  }
  if (kind != kVtVariant || values->cDims != 1) throw Refused{status::kTypeMismatch};
  Owned typed(same_bounds(values, element));
  for (std::size_t i = 0; i < values->rgsabound[0].cElements; ++i)
    convert_into(typed.get(), element, values, i);
  // A method must not give new bounds to an array whose bounds the caller has fixed.
  if (has_fixed_bounds(*values)) typed.get()->fFeatures |= kFeatureFixedSize;
  return typed.release();
}

void write_array_back(VARIANT& argument, const SAFEARRAY* typed) {
  VARIANT& variable = variable_of(argument);
  if (typed == nullptr || typed->cDims != 1) return;
  const VARTYPE element = element_kind(typed);
  Owned values(same_bounds(typed, kVtVariant));
  auto* to = static_cast<VARIANT*>(values.get()->pvData);
  for (std::size_t i = 0; i < typed->rgsabound[0].cElements; ++i) {
    const VARIANT source = reference_to(typed, element, i);
    if (VariantCopyInd(&to[i], &source) < 0) throw Refused{status::kOutOfMemory};
  }
  SAFEARRAY* const before = (variable.vt & kVtArray) != 0 ? array_in(variable) : nullptr;
  if (before != nullptr && has_fixed_bounds(*before)) {
    swap_elements(*before, *values.get());
  } else if (is_variable(variable)) {
    if (before != nullptr) SafeArrayDestroy(before);
    *variable.pparray = values.release();
  } else {
    VariantClear(&variable);
    variable.vt = kVtArray | kVtVariant;
    variable.parray = values.release();
  }
}

}  // namespace kw::frame
