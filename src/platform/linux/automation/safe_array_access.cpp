// Arrays: bounds, locks and single elements.
#include <cstring>
#include <limits>

#include "platform/linux/automation/array_memory.h"
#include "platform/linux/automation/kinds.h"

namespace kw {
namespace {

using namespace automation;

constexpr std::uint32_t kMostLocks = std::numeric_limits<std::uint16_t>::max();

// The bound of a dimension, counted from the left and from 1.
const SAFEARRAYBOUND* bound_of(const SAFEARRAY& array, std::uint32_t dimension) {
  if (dimension == 0 || dimension > array.cDims) return nullptr;
  return &array.rgsabound[array.cDims - dimension];
}

// Beyond 32 bits it wraps, as the callers' own arithmetic on bounds does.
std::int32_t upper_bound(const SAFEARRAYBOUND& bound) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(bound.lLbound) + bound.cElements -
                                   1u);
}

// Puts the value in the place of an element. A text, an object: `value` is the pointer itself.
HRESULT put(const SAFEARRAY& array, void* element, void* value) {
  constexpr unsigned kPointers = kFeatureBstr | kFeatureUnknown | kFeatureDispatch;
  const void* const source = array.fFeatures & kPointers ? &value : value;
  if (array.fFeatures & kFeatureVariant) {
    return VariantCopy(static_cast<VARIANT*>(element), static_cast<const VARIANT*>(source));
  }
  if (!(array.fFeatures & kPointers)) return copy_element(array, source, element);
  void* fresh = nullptr;
  const HRESULT result = copy_element(array, source, &fresh);
  if (failed(result)) return result;
  void* old = nullptr;
  std::memcpy(&old, element, sizeof old);
  std::memcpy(element, &fresh, sizeof fresh);
  if (array.fFeatures & kFeatureBstr) {
    SysFreeString(static_cast<BSTR>(old));
  } else if (old != nullptr) {
    static_cast<IUnknown*>(old)->Release();
  }
  return status::kOk;
}

bool needs_value(const SAFEARRAY& array) {
  return !(array.fFeatures & (kFeatureBstr | kFeatureUnknown | kFeatureDispatch));
}

}  // namespace

std::uint32_t SafeArrayGetDim(SAFEARRAY* array) { return array != nullptr ? array->cDims : 0; }

std::uint32_t SafeArrayGetElemsize(SAFEARRAY* array) {
  return array != nullptr ? array->cbElements : 0;
}

HRESULT SafeArrayGetVartype(SAFEARRAY* array, VARTYPE* kind) {
  if (array == nullptr || kind == nullptr) return status::kInvalidArgument;
  if (array->fFeatures & kFeatureHaveVartype) {
    std::uint32_t stored;
    std::memcpy(&stored, reinterpret_cast<const char*>(array) - sizeof stored, sizeof stored);
    *kind = static_cast<VARTYPE>(stored);
  } else if (array->fFeatures & kFeatureDispatch) {
    *kind = kVtDispatch;
  } else if (array->fFeatures & kFeatureUnknown) {
    *kind = kVtUnknown;
  } else {
    return status::kInvalidArgument;
  }
  return status::kOk;
}

HRESULT SafeArrayGetLBound(SAFEARRAY* array, std::uint32_t dimension, std::int32_t* bound) {
  if (array == nullptr || bound == nullptr) return status::kInvalidArgument;
  const SAFEARRAYBOUND* const found = bound_of(*array, dimension);
  if (found == nullptr) return status::kBadIndex;
  *bound = found->lLbound;
  return status::kOk;
}

HRESULT SafeArrayGetUBound(SAFEARRAY* array, std::uint32_t dimension, std::int32_t* bound) {
  if (array == nullptr || bound == nullptr) return status::kInvalidArgument;
  const SAFEARRAYBOUND* const found = bound_of(*array, dimension);
  if (found == nullptr) return status::kBadIndex;
  *bound = upper_bound(*found);
  return status::kOk;
}

HRESULT SafeArrayLock(SAFEARRAY* array) {
  if (array == nullptr) return status::kInvalidArgument;
  if (array->cLocks >= kMostLocks) return status::kUnexpected;
  ++array->cLocks;
  return status::kOk;
}

HRESULT SafeArrayUnlock(SAFEARRAY* array) {
  if (array == nullptr) return status::kInvalidArgument;
  if (array->cLocks == 0) return status::kUnexpected;
  --array->cLocks;
  return status::kOk;
}

HRESULT SafeArrayAccessData(SAFEARRAY* array, void** data) {
  if (array == nullptr || data == nullptr) return status::kInvalidArgument;
  const HRESULT result = SafeArrayLock(array);
  *data = succeeded(result) ? array->pvData : nullptr;
  return result;
}

HRESULT SafeArrayUnaccessData(SAFEARRAY* array) { return SafeArrayUnlock(array); }

HRESULT SafeArrayPtrOfIndex(SAFEARRAY* array, std::int32_t* indices, void** element) {
  if (array == nullptr || indices == nullptr || element == nullptr) {
    return status::kInvalidArgument;
  }
  std::size_t position = 0;
  std::size_t stride = 1;  // the leftmost index varies fastest
  for (std::uint32_t dimension = 1; dimension <= array->cDims; ++dimension) {
    const SAFEARRAYBOUND& bound = *bound_of(*array, dimension);
    const std::int64_t offset = std::int64_t{indices[dimension - 1]} - bound.lLbound;
    if (offset < 0 || offset >= bound.cElements) return status::kBadIndex;
    position += static_cast<std::size_t>(offset) * stride;
    stride *= bound.cElements;
  }
  if (array->pvData == nullptr) return status::kBadIndex;
  *element = static_cast<char*>(array->pvData) + position * array->cbElements;
  return status::kOk;
}

HRESULT SafeArrayGetElement(SAFEARRAY* array, std::int32_t* indices, void* value) {
  if (value == nullptr) return status::kInvalidArgument;
  void* element = nullptr;
  const HRESULT found = SafeArrayPtrOfIndex(array, indices, &element);
  return failed(found) ? found : copy_element(*array, element, value);
}

HRESULT SafeArrayPutElement(SAFEARRAY* array, std::int32_t* indices, void* value) {
  void* element = nullptr;
  const HRESULT found = SafeArrayPtrOfIndex(array, indices, &element);
  if (failed(found)) return found;
  if (value == nullptr && needs_value(*array)) return status::kInvalidArgument;
  return put(*array, element, value);
}

}  // namespace kw
