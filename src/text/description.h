// How clsStringUtil presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsStringUtil_table();

}  // namespace kw
