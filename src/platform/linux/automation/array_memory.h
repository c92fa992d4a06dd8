// The memory of arrays: descriptors, data, elements.
#pragma once

#include <cstddef>
#include <optional>

#include "kwutils/automation.h"

namespace kw::automation {

// A descriptor without data or bounds for elements of this kind; null without memory.
SAFEARRAY* allocate_descriptor(VARTYPE kind, std::uint16_t dimensions);

// A descriptor without data like another one: its bounds, features and kind, not its storage.
SAFEARRAY* duplicate_descriptor(const SAFEARRAY& like);

// Leaves alone a descriptor that its owner keeps on the stack, in static memory or in a structure.
void free_descriptor(SAFEARRAY* array);

// The number of elements; nothing where their data would pass the 32 bits of an array's size.
std::optional<std::size_t> element_count(const SAFEARRAY& array);

// Elements of zeros; null where there is no memory or the array would be too large.
void* allocate_data(const SAFEARRAY& array);

// Copies one element over memory that owns nothing.
HRESULT copy_element(const SAFEARRAY& array, const void* source, void* target);

// Copies all elements over zeros. On failure what was copied stays, for release_elements.
HRESULT copy_elements(const SAFEARRAY& from, std::size_t count, void* target);

// Gives back what the elements own and makes them zeros. The array is locked meanwhile: an object
// that ends here may try to change the array that held it.
void release_elements(SAFEARRAY& array, std::size_t first, std::size_t end);

}  // namespace kw::automation
