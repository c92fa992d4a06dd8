// How clsFileReadWrite presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsFileReadWrite_table();

}  // namespace kw
