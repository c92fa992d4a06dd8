// The classes that the library serves.
#pragma once

#include <span>
#include <string_view>

#include "frame/class_table.h"
#include "kwutils/automation.h"

namespace kw::server {

// All eight, in the order of their publication.
std::span<const frame::ClassTable* const> classes();

// The class of an identifier, or null.
const frame::ClassTable* find_class(const GUID& class_id) noexcept;
// The class of a name in any case, with or without "kwUtils." in front, or null.
const frame::ClassTable* find_class(std::u16string_view name);

}  // namespace kw::server
