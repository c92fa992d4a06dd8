// An output file of the system.
#pragma once

#include <memory>

#include "platform/files.h"
#include "platform/native_file.h"

namespace kw::platform {

// `file` is open for writing; `name` is for messages.
std::unique_ptr<OutputFile> buffered_output(NativeFile file, FileName name);

}  // namespace kw::platform
