// How clsDataEdtUtils presents itself to callers.
#pragma once

#include "frame/class_table.h"

namespace kw {

const frame::ClassTable& clsDataEdtUtils_table();

}  // namespace kw
