#include "slot_arguments.h"

#include "types/status.h"

namespace kw::cases {
namespace {

bool is_missing(const VARIANT& value) {
  return value.vt == kVtError && value.scode == status::kParameterNotFound;
}

bool fits(VARTYPE held, VARTYPE declared) {
  if (declared == kVtArray) return (held & kVtArray) != 0;
  // Both are 16-bit numbers; only a type library tells them apart.
  if (declared == kVtI2 && held == kVtBool) return true;
  return held == declared;
}

// The kind of a variable that was unset before a call changed it.
VARTYPE kind_after(const VARIANT& value, VARTYPE declared) {
  if (declared != kVtArray || value.parray == nullptr) return declared;
  VARTYPE element = kVtEmpty;
  SafeArrayGetVartype(value.parray, &element);
  return static_cast<VARTYPE>(kVtArray | element);
}

}  // namespace

void* SlotArgument::converted(const VARIANT& from, VARTYPE kind) {
  check_status(VariantChangeType(stand_in_.address(), &from, 0, kind));
  return &stand_in_.address()->llVal;
}

void* SlotArgument::value(VARTYPE kind) {
  VARIANT& at = sent_->vt == (kVtByRef | kVtVariant) ? *sent_->pvarVal : *sent_;
  if (kind == kVtVariant) return &at;
  return fits(at.vt, kind) ? &at.llVal : converted(at, kind);
}

void* SlotArgument::reference(VARTYPE kind) {
  is_reference_ = true;
  if (null_) return nullptr;
  VARIANT& at = sent_->vt == (kVtByRef | kVtVariant) ? *sent_->pvarVal : *sent_;
  if (kind == kVtVariant) return &at;
  if (is_missing(at)) return nullptr;
  if ((at.vt & kVtByRef) != 0 && fits(static_cast<VARTYPE>(at.vt & ~kVtByRef), kind))
    return at.byref;
  if (fits(at.vt, kind)) return &at.llVal;
  if (at.vt != kVtEmpty) return converted(at, kind);
  unset_ = &at;
  stand_in_.address()->vt = kind;
  stand_in_.address()->llVal = 0;
  return &stand_in_.address()->llVal;
}

void SlotArgument::write_back() noexcept {
  if (unset_ == nullptr) return;
  *unset_ = stand_in_.release();
  unset_->vt = kind_after(*unset_, unset_->vt);
  unset_ = nullptr;
}

SlotArguments::SlotArguments(std::vector<VARIANT>& sent, std::size_t parameters, VARIANT* result)
    : left_out_(Variant::missing().release()), result_(result) {
  for (std::size_t i = 0; i < parameters; ++i)
    arguments_.emplace_back(i < sent.size() ? sent[i] : left_out_);
}

SlotResult SlotArguments::result(VARTYPE kind) noexcept {
  if (result_ != nullptr && kind != kVtVariant) *result_ = VARIANT{kind, 0, 0, 0, {0}};
  return SlotResult(result_);
}

void SlotArguments::write_back() noexcept {
  for (SlotArgument& argument : arguments_) argument.write_back();
}

}  // namespace kw::cases
