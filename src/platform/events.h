// The host's queue of user-interface messages.
#pragma once

namespace kw::platform {

// Lets the host process what waits in its queue. This may lead back into the library. Costs nothing
// measurable where the host has set no function.
void process_events();

}  // namespace kw::platform
