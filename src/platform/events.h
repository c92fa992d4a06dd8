// The host's queue of user-interface messages.
#pragma once

namespace kw::platform {

// Lets the host process what waits in its queue. This may lead back into the library. Costs nothing
// measurable where the host has set no function.
void process_events();

// Whether the host has set a function for that, and so can tell how often it is asked. The system's
// own queue is as well looked after now and then.
bool host_wants_turns() noexcept;

}  // namespace kw::platform
