// Creating objects by name, as any automation client does.
#pragma once

#include <string_view>

#include "kwutils/object.h"

namespace kw {

// A new object of a registered class: `name` is its programmatic name ("kwUtils.clsParse", any
// case) or its identifier, with or without braces. The library that serves the class is loaded from
// where it was registered, into this process, and stays loaded. Error 429 when no class of that
// name is registered, or its library cannot be loaded; the description says which and why.
//
//   kw::Object parser = kw::create_object(u"kwUtils.clsParse");
//   const kw::Variant line(u"id 'B 2'"), second(2);
//   parser.call(u"ParseToken", {&line, &second}).text();  // u"B 2"
Object create_object(std::u16string_view name);

}  // namespace kw
