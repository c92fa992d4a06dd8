#include "platform/linux/automation/array_memory.h"

#include <cstdlib>
#include <cstring>
#include <limits>

#include "platform/linux/automation/kinds.h"
#include "platform/linux/automation/live_counts.h"

namespace kw::automation {
namespace {

// Before each descriptor lie 16 bytes for the elements' interface; the kind lies in the last four.
constexpr std::size_t kHidden = sizeof(GUID);
constexpr std::uint16_t kKeptByOwner = kFeatureAuto | kFeatureStatic | kFeatureEmbedded;

char* hidden_part(SAFEARRAY* array) { return reinterpret_cast<char*>(array) - kHidden; }

SAFEARRAY* allocate_blank(std::uint16_t dimensions) {
  const std::size_t bounds = std::size_t{dimensions} * sizeof(SAFEARRAYBOUND);
  void* const block = std::calloc(1, kHidden + offsetof(SAFEARRAY, rgsabound) + bounds);
  if (block == nullptr) return nullptr;
  live::add(&live::Counts::arrays, 1);
  auto* const array = reinterpret_cast<SAFEARRAY*>(static_cast<char*>(block) + kHidden);
  array->cDims = dimensions;
  return array;
}

void set_kind(SAFEARRAY* array, VARTYPE kind) {
  array->cbElements = element_size(kind);
  array->fFeatures = element_features(kind);
  if (array->fFeatures & kFeatureHaveIid) {
    const GUID& iid = kind == kVtDispatch ? kIidDispatch : kIidUnknown;
    std::memcpy(hidden_part(array), &iid, sizeof iid);
  } else {
    const std::uint32_t stored = kind;
    std::memcpy(reinterpret_cast<char*>(array) - sizeof stored, &stored, sizeof stored);
  }
}

HRESULT copy_text(BSTR source, void* target) {
  BSTR copy = nullptr;
  if (source != nullptr) {
    copy = SysAllocStringByteLen(reinterpret_cast<const char*>(source), SysStringByteLen(source));
    if (copy == nullptr) return status::kOutOfMemory;
  }
  std::memcpy(target, &copy, sizeof copy);
  return status::kOk;
}

template <typename T>
T load(const void* source) {
  T value;
  std::memcpy(&value, source, sizeof value);
  return value;
}

void release_element(std::uint16_t features, void* element) {
  if (features & kFeatureBstr) SysFreeString(load<BSTR>(element));
  if (features & kFeatureVariant) VariantClear(static_cast<VARIANT*>(element));
  if (features & (kFeatureUnknown | kFeatureDispatch)) {
    if (auto* const object = load<IUnknown*>(element)) object->Release();
  }
}

}  // namespace

SAFEARRAY* allocate_descriptor(VARTYPE kind, std::uint16_t dimensions) {
  SAFEARRAY* const array = allocate_blank(dimensions);
  if (array != nullptr) set_kind(array, kind);
  return array;
}

SAFEARRAY* duplicate_descriptor(const SAFEARRAY& like) {
  SAFEARRAY* const array = allocate_blank(like.cDims);
  if (array == nullptr) return nullptr;
  constexpr unsigned kKept = kOwningFeatures | kFeatureHaveVartype | kFeatureHaveIid;
  array->fFeatures = static_cast<std::uint16_t>(like.fFeatures & kKept);
  array->cbElements = like.cbElements;
  std::memcpy(array->rgsabound, like.rgsabound, like.cDims * sizeof(SAFEARRAYBOUND));
  if (like.fFeatures & (kFeatureHaveVartype | kFeatureHaveIid)) {
    const std::size_t hidden =
        like.fFeatures & kFeatureHaveIid ? sizeof(GUID) : sizeof(std::uint32_t);
    std::memcpy(reinterpret_cast<char*>(array) - hidden,
                reinterpret_cast<const char*>(&like) - hidden, hidden);
  }
  return array;
}

void free_descriptor(SAFEARRAY* array) {
  if (array->fFeatures & kKeptByOwner) return;
  live::add(&live::Counts::arrays, -1);
  std::free(hidden_part(array));
}

std::optional<std::size_t> element_count(const SAFEARRAY& array) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
  std::uint64_t count = 1;
  for (std::uint16_t i = 0; i < array.cDims; ++i) {
    count *= array.rgsabound[i].cElements;
    if (count > kMost) return std::nullopt;
  }
  if (count * array.cbElements > kMost) return std::nullopt;
  return static_cast<std::size_t>(count);
}

void* allocate_data(const SAFEARRAY& array) {
  const auto count = element_count(array);
  if (!count) return nullptr;
  return std::calloc(*count > 0 ? *count : 1, array.cbElements > 0 ? array.cbElements : 1);
}

HRESULT copy_element(const SAFEARRAY& array, const void* source, void* target) {
  if (array.fFeatures & kFeatureBstr) return copy_text(load<BSTR>(source), target);
  if (array.fFeatures & kFeatureVariant) {
    auto* const copy = static_cast<VARIANT*>(target);
    VariantInit(copy);
    return VariantCopy(copy, static_cast<const VARIANT*>(source));
  }
  if (array.fFeatures & (kFeatureUnknown | kFeatureDispatch)) {
    if (auto* const object = load<IUnknown*>(source)) object->AddRef();
  }
  std::memcpy(target, source, array.cbElements);
  return status::kOk;
}

HRESULT copy_elements(const SAFEARRAY& from, std::size_t count, void* target) {
  if (!(from.fFeatures & kOwningFeatures)) {
    std::memcpy(target, from.pvData, count * from.cbElements);
    return status::kOk;
  }
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t offset = i * from.cbElements;
    const HRESULT result = copy_element(from, static_cast<const char*>(from.pvData) + offset,
                                        static_cast<char*>(target) + offset);
    if (failed(result)) return result;
  }
  return status::kOk;
}

void release_elements(SAFEARRAY& array, std::size_t first, std::size_t end) {
  if (array.pvData == nullptr) return;
  char* const data = static_cast<char*>(array.pvData);
  ++array.cLocks;
  if (array.fFeatures & kOwningFeatures) {
    for (std::size_t i = first; i < end; ++i) {
      release_element(array.fFeatures, data + i * array.cbElements);
    }
  }
  std::memset(data + first * array.cbElements, 0, (end - first) * array.cbElements);
  --array.cLocks;
}

}  // namespace kw::automation
