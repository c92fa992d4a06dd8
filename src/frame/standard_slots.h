// The slots that every object has: references and interfaces, then late-bound calls.
#pragma once

#include <span>

namespace kw::frame {

// QueryInterface, AddRef, Release, GetTypeInfoCount, GetTypeInfo, GetIDsOfNames, Invoke.
std::span<void* const> standard_slots() noexcept;

// QueryInterface, AddRef, Release, InterfaceSupportsErrorInfo of an object's error-info part.
void* const* error_info_slots() noexcept;

}  // namespace kw::frame
