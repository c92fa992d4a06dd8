// The operating system's own file service; each system implements it.
#pragma once

#include "platform/files.h"

namespace kw::platform {

FileService& system_files() noexcept;

}  // namespace kw::platform
