// Classes and methods as a caller sees them.
#pragma once

#include <string>

#include "frame/description.h"
#include "tool/session.h"

namespace kw::tool {

// "ParseToken(Buf: text, [ScanToTk: variant by reference]) -> text"
std::string signature(const frame::Method& method);

void write_classes(Session& session);
void write_methods(Session& session, const frame::ClassDescription& of_class);

}  // namespace kw::tool
