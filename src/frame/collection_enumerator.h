// Walks a collection for a host's "for each".
#pragma once

#include "kwutils/collection.h"

namespace kw::frame {

class CollectionItems;

// An enumerator (IEnumVARIANT) that keeps its collection alive and goes by position: items added
// behind it while it walks are met, and those removed before they are reached are not.
Unknown enumerate(CollectionItems& items);

}  // namespace kw::frame
