// The definitions of the library's interfaces in the language that type libraries are compiled
// from.
#pragma once

#include <string>

namespace kw::server {

// The whole of kwutils.idl, made from the descriptions of the classes. Lines end with "\n".
std::string interface_definitions();

}  // namespace kw::server
