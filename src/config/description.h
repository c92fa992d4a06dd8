// How clsIni presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsIni_table();

}  // namespace kw
