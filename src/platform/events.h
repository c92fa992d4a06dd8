// The host's queue of user-interface messages.
#pragma once

namespace kw::platform {

// Lets the host process what waits in its queue. This may lead back into the library. Costs nothing
// measurable where the host has set no function.
void process_events();

// False where process_events() would do nothing: who reads many records may then take them at once.
bool events_may_wait() noexcept;

}  // namespace kw::platform
