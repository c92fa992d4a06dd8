// Arrays: making, changing, copying and ending them.
#include <cstdlib>
#include <cstring>
#include <limits>

#include "platform/linux/automation/array_memory.h"
#include "platform/linux/automation/kinds.h"

namespace kw {
namespace {

using namespace automation;

constexpr std::uint32_t kMostDimensions = std::numeric_limits<std::uint16_t>::max();

SAFEARRAY* with_data(SAFEARRAY* array) {
  if (array == nullptr) return nullptr;
  array->pvData = allocate_data(*array);
  if (array->pvData != nullptr) return array;
  free_descriptor(array);
  return nullptr;
}

HRESULT shrink(SAFEARRAY& array, std::size_t old_count, std::size_t new_count) {
  release_elements(array, new_count, old_count);
  const std::size_t size = new_count * array.cbElements;
  // A block that cannot be made smaller serves as it is.
  if (void* const data = std::realloc(array.pvData, size > 0 ? size : 1)) array.pvData = data;
  return status::kOk;
}

HRESULT grow(SAFEARRAY& array, std::size_t old_count, std::size_t new_count) {
  void* const data = std::realloc(array.pvData, new_count * array.cbElements);
  if (data == nullptr) return status::kOutOfMemory;
  array.pvData = data;
  std::memset(static_cast<char*>(data) + old_count * array.cbElements, 0,
              (new_count - old_count) * array.cbElements);
  return status::kOk;
}

HRESULT resize(SAFEARRAY& array, const SAFEARRAYBOUND& last) {
  const SAFEARRAYBOUND old = array.rgsabound[0];
  const std::size_t old_count = array.pvData != nullptr ? element_count(array).value_or(0) : 0;
  array.rgsabound[0] = last;
  const auto new_count = element_count(array);
  HRESULT result = status::kOutOfMemory;
  if (new_count) {
    result = *new_count > old_count ? grow(array, old_count, *new_count)
                                    : shrink(array, old_count, *new_count);
  }
  if (failed(result)) array.rgsabound[0] = old;
  return result;
}

HRESULT copy_data(const SAFEARRAY& source, SAFEARRAY& copy) {
  if (source.pvData == nullptr) return status::kOk;
  copy.pvData = allocate_data(copy);
  if (copy.pvData == nullptr) return status::kOutOfMemory;
  return copy_elements(source, element_count(source).value_or(0), copy.pvData);
}

}  // namespace

SAFEARRAY* SafeArrayCreate(VARTYPE kind, std::uint32_t dimensions, SAFEARRAYBOUND* bounds) {
  if (bounds == nullptr || dimensions == 0 || dimensions > kMostDimensions) return nullptr;
  if (element_size(kind) == 0) return nullptr;
  SAFEARRAY* const array = allocate_descriptor(kind, static_cast<std::uint16_t>(dimensions));
  if (array == nullptr) return nullptr;
  for (std::uint32_t i = 0; i < dimensions; ++i) {
    array->rgsabound[i] = bounds[dimensions - 1 - i];
  }
  return with_data(array);
}

SAFEARRAY* SafeArrayCreateVector(VARTYPE kind, std::int32_t lower, std::uint32_t count) {
  SAFEARRAYBOUND bound{count, lower};
  return SafeArrayCreate(kind, 1, &bound);
}

HRESULT SafeArrayAllocDescriptorEx(VARTYPE kind, std::uint32_t dimensions, SAFEARRAY** array) {
  if (array == nullptr) return status::kPointer;
  *array = nullptr;
  if (dimensions == 0 || dimensions > kMostDimensions) return status::kInvalidArgument;
  if (element_size(kind) == 0) return status::kInvalidArgument;
  *array = allocate_descriptor(kind, static_cast<std::uint16_t>(dimensions));
  return *array != nullptr ? status::kOk : status::kOutOfMemory;
}

HRESULT SafeArrayAllocData(SAFEARRAY* array) {
  if (array == nullptr) return status::kInvalidArgument;
  void* const data = allocate_data(*array);
  if (data == nullptr) return status::kOutOfMemory;
  array->pvData = data;
  return status::kOk;
}

HRESULT SafeArrayDestroyData(SAFEARRAY* array) {
  if (array == nullptr) return status::kInvalidArgument;
  if (array->cLocks > 0) return status::kArrayIsLocked;
  if (array->pvData == nullptr) return status::kOk;
  release_elements(*array, 0, element_count(*array).value_or(0));
  if (array->fFeatures & kFeatureStatic) return status::kOk;
  std::free(array->pvData);
  array->pvData = nullptr;
  return status::kOk;
}

HRESULT SafeArrayDestroy(SAFEARRAY* array) {
  if (array == nullptr) return status::kOk;
  const HRESULT result = SafeArrayDestroyData(array);
  if (succeeded(result)) free_descriptor(array);
  return result;
}

HRESULT SafeArrayRedim(SAFEARRAY* array, SAFEARRAYBOUND* last) {
  if (array == nullptr || last == nullptr || array->cDims == 0) return status::kInvalidArgument;
  constexpr unsigned kUnchanging = kFeatureFixedSize | kFeatureStatic;
  if (array->cLocks > 0 || (array->fFeatures & kUnchanging)) return status::kArrayIsLocked;
  return resize(*array, *last);
}

HRESULT SafeArrayCopy(SAFEARRAY* array, SAFEARRAY** copy) {
  if (copy == nullptr) return status::kInvalidArgument;
  *copy = nullptr;
  if (array == nullptr) return status::kOk;
  if (array->cDims == 0 || array->cbElements == 0) return status::kInvalidArgument;
  SAFEARRAY* const fresh = duplicate_descriptor(*array);
  if (fresh == nullptr) return status::kOutOfMemory;
  const HRESULT result = copy_data(*array, *fresh);
  if (failed(result)) {
    SafeArrayDestroy(fresh);
  } else {
    *copy = fresh;
  }
  return result;
}

}  // namespace kw
