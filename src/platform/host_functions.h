// The functions that the embedding program has set; the platform's services ask here first.
#pragma once

#include <optional>
#include <string>

#include "kwutils/host.h"

namespace kw::platform {

const HostFunctions& host_functions() noexcept;

// The text that one of the host's functions gives; nothing when the host has not set it.
std::optional<std::u16string> host_text(BSTR (KW_STDCALL* HostFunctions::*function)(void*));

}  // namespace kw::platform
