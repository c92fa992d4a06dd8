// How clsQSort presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsQSort_table();

}  // namespace kw
