#include "frame/arguments.h"

namespace kw::frame {
namespace {

constexpr VARTYPE kReference = kVtByRef | kVtVariant;

// Variables that refer to variables: the last one that does. Null when they go round in a circle.
VARIANT* last_reference(VARIANT* given) {
  constexpr int kMostSteps = 64;
  for (int i = 0; i < kMostSteps; ++i) {
    if (given->vt != kReference || given->pvarVal == nullptr || given->pvarVal->vt != kReference)
      return given;
    given = given->pvarVal;
  }
  return nullptr;
}

bool refers_nowhere(const VARIANT& value) {
  const bool to_variant = value.vt == kReference && value.pvarVal != nullptr;
  const VARIANT& last = to_variant ? *value.pvarVal : value;
  return (last.vt & kVtByRef) != 0 && last.byref == nullptr;
}

bool is_missing(const VARIANT& value) {
  return value.vt == kVtError && value.scode == status::kParameterNotFound;
}

// A host that passes on what its own caller left out sends a variable that says so.
bool left_out(const VARIANT& value, const Parameter& parameter) {
  return is_missing(value) || (parameter.optional && parameter.kind != Kind::variant &&
                               value.vt == kReference && is_missing(*value.pvarVal));
}

bool well_formed(const DISPPARAMS& sent) {
  return (sent.cArgs == 0 || sent.rgvarg != nullptr) &&
         (sent.cNamedArgs == 0 || sent.rgdispidNamedArgs != nullptr);
}

}  // namespace

HRESULT Arguments::place(std::size_t position, const DISPPARAMS& sent,
                         std::uint32_t index) noexcept {
  if (position >= method_->parameters.size() || by_position_[position] != nullptr)
    return status::kParameterNotFound;
  VARIANT* const given = last_reference(&sent.rgvarg[index]);
  if (given == nullptr || refers_nowhere(*given)) return status::kInvalidArgument;
  sent_index_[position] = index;
  if (!left_out(*given, parameter(position))) by_position_[position] = given;
  return status::kOk;
}

HRESULT Arguments::sort(const Method& method, const DISPPARAMS& sent,
                        std::uint32_t* bad_argument) noexcept {
  if (!well_formed(sent)) return status::kInvalidArgument;
  method_ = &method;
  const std::size_t expected = method.parameters.size();
  if (sent.cArgs > expected || sent.cNamedArgs > sent.cArgs) return status::kBadParameterCount;
  for (std::size_t i = 0; i < expected; ++i) by_position_[i] = nullptr, sent_index_[i] = 0;
  for (std::uint32_t i = 0; i < sent.cArgs; ++i) {
    const bool named = i < sent.cNamedArgs;
    const std::size_t position =
        named ? static_cast<std::size_t>(static_cast<std::uint32_t>(sent.rgdispidNamedArgs[i]))
              : sent.cArgs - 1 - i;
    const HRESULT placed = place(position, sent, i);
    if (placed == status::kOk) continue;
    if (bad_argument != nullptr) *bad_argument = i;
    return placed;
  }
  for (std::size_t i = 0; i < expected; ++i) {
    if (by_position_[i] != nullptr || method.parameters[i].optional) continue;
    if (sent.cNamedArgs == 0 && sent.cArgs <= i) return status::kBadParameterCount;
    if (bad_argument != nullptr) *bad_argument = sent_index_[i];
    return status::kParameterNotOptional;
  }
  return status::kOk;
}

}  // namespace kw::frame
