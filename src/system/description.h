// How clsAPIUtil presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsAPIUtil_table();

}  // namespace kw
