// The host's door: the interface behind every class factory through which the embedding program
// supplies its functions and opens files under numbers.
#pragma once

#include "kwutils/host.h"

namespace kw::frame {

// The one door of this library; it lives as long as the library.
IHostDoor& host_door() noexcept;

}  // namespace kw::frame
