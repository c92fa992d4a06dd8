// The collection as an object of the frame.
#pragma once

#include "frame/class_table.h"
#include "frame/object.h"

namespace kw::frame {

class CollectionItems;

// The description and slots of the hosts' collection interface.
const ClassTable& collection_table();

// The native items of an object that is a collection of this library's own; else null.
CollectionItems* own_items(IDispatch* object) noexcept;

}  // namespace kw::frame
