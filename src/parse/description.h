// How clsParse presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsParse_table();

}  // namespace kw
