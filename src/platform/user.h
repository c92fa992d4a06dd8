// Who runs the process.
#pragma once

#include <optional>
#include <string>

namespace kw::platform {

// The log-in name; nothing when the system cannot tell it.
std::optional<std::u16string> user_name();

}  // namespace kw::platform
