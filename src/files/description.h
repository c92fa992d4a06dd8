// How clsFileUtil presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsFileUtil_table();

}  // namespace kw
