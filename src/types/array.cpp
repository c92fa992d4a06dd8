#include "kwutils/array.h"

#include "kwutils/error.h"
#include "types/array_size.h"
#include "types/status.h"

namespace kw {
namespace {

void require_one_dimension(const SAFEARRAY* array) {
  if (array == nullptr || array->cDims != 1) throw Error(ErrorNumber::subscript_out_of_range);
}

std::uint32_t element_count(std::int32_t lower, std::int64_t upper) {
  if (upper < lower) throw Error(ErrorNumber::subscript_out_of_range);
  const std::int64_t count = upper - lower + 1;
  if (upper > INT32_MAX || count > INT32_MAX) throw Error(ErrorNumber::out_of_memory);
  return static_cast<std::uint32_t>(count);
}

}  // namespace

ArrayBase::~ArrayBase() {
  if (array_ != nullptr) SafeArrayDestroy(array_);
}

std::int32_t ArrayBase::lower() const {
  if (!dimensioned()) throw Error(ErrorNumber::subscript_out_of_range);
  return array_->rgsabound[array_->cDims - 1].lLbound;
}

std::int32_t ArrayBase::upper() const {
  const std::int64_t low = lower();
  const std::int64_t count = array_->rgsabound[array_->cDims - 1].cElements;
  return static_cast<std::int32_t>(low + count - 1);
}

std::size_t ArrayBase::size() const noexcept {
  return dimensioned() && array_->cDims == 1 ? array_->rgsabound[0].cElements : 0;
}

void ArrayBase::check_kind(VARTYPE kind, std::size_t width) const {
  VARTYPE held = kVtEmpty;
  if (array_->cbElements != width ||
      (SafeArrayGetVartype(array_, &held) >= 0 && held != kVtEmpty && held != kind))
    throw Error(ErrorNumber::type_mismatch);
}

void* ArrayBase::element(std::int32_t index, VARTYPE kind, std::size_t width) const {
  require_one_dimension(array_);
  const std::int64_t offset = std::int64_t{index} - array_->rgsabound[0].lLbound;
  if (offset < 0 || offset >= std::int64_t{array_->rgsabound[0].cElements})
    throw Error(ErrorNumber::subscript_out_of_range);
  check_kind(kind, width);
  return static_cast<char*>(array_->pvData) + static_cast<std::size_t>(offset) * width;
}

void* ArrayBase::data(VARTYPE kind, std::size_t width) const {
  if (!dimensioned()) return nullptr;
  require_one_dimension(array_);
  check_kind(kind, width);
  return array_->pvData;
}

void ArrayBase::check_resizable() const {
  if (array_ == nullptr) return;
  constexpr std::uint16_t kFixed =
      kFeatureAuto | kFeatureStatic | kFeatureEmbedded | kFeatureFixedSize;
  if (array_->cLocks != 0 || (array_->fFeatures & kFixed) != 0)
    throw Error(ErrorNumber::array_locked);
}

SAFEARRAY* ArrayBase::make(VARTYPE kind, std::int32_t lower, std::size_t count) {
  if (!array_fits(kind, count)) throw Error(ErrorNumber::out_of_memory);
  SAFEARRAYBOUND bound = {static_cast<std::uint32_t>(count), lower};
  SAFEARRAY* array = SafeArrayCreate(kind, 1, &bound);
  if (array == nullptr) throw Error(ErrorNumber::out_of_memory);
  return array;
}

void ArrayBase::replace(SAFEARRAY* array) noexcept {
  if (array_ != nullptr) SafeArrayDestroy(array_);
  array_ = array;
}

void ArrayBase::create(VARTYPE kind, std::int32_t lower, std::int64_t upper) {
  const std::uint32_t count = element_count(lower, upper);
  check_resizable();
  replace(make(kind, lower, count));
}

void ArrayBase::create_preserving(VARTYPE kind, std::int32_t lower, std::int64_t upper) {
  const std::uint32_t count = element_count(lower, upper);
  check_resizable();
  if (!dimensioned()) return replace(make(kind, lower, count));
  require_one_dimension(array_);
  if (array_->rgsabound[0].lLbound != lower) throw Error(ErrorNumber::subscript_out_of_range);
  if (!array_fits(kind, count)) throw Error(ErrorNumber::out_of_memory);
  SAFEARRAYBOUND bound = {count, lower};
  check_status(SafeArrayRedim(array_, &bound));
}

}  // namespace kw
