// What is known of a kind of value: whether it exists, its size, how an array's features name it.
#pragma once

#include "kwutils/automation.h"

namespace kw::automation {

// The features that make an array own what its elements refer to.
inline constexpr std::uint16_t kOwningFeatures =
    kFeatureBstr | kFeatureUnknown | kFeatureDispatch | kFeatureVariant;

// The size of an element of an array or of a by-reference value; 0 where there can be none.
std::uint32_t element_size(VARTYPE kind);

// The features of an array of elements of this kind.
std::uint16_t element_features(VARTYPE kind);

// Whether a variant can say that it holds this.
bool is_variant_kind(VARTYPE kind);

}  // namespace kw::automation
