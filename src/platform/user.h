// Who runs the process.
#pragma once

#include <optional>
#include <string>

namespace kw::platform {

// The log-in name, by the host where it has set that function; nothing when it cannot be told.
std::optional<std::u16string> user_name();

// The operating system's own answer; each system implements it.
std::optional<std::u16string> system_user_name();

}  // namespace kw::platform
