// Identifiers as text: "{141AA2DD-593E-11D2-805F-00A0244600DF}".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kwutils/automation.h"

namespace kw::platform {

// In braces and upper case.
std::string guid_text(const GUID& guid);

// Reads an identifier in any case, with or without braces; nothing for any other text.
std::optional<GUID> parse_guid(std::string_view text);

}  // namespace kw::platform
