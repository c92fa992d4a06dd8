// The host's queue of user-interface messages.
#pragma once

namespace kw::platform {

// Lets the host process what waits in its queue. This may lead back into the library. Costs nothing
// measurable where the host has set no function.
void process_events();

// Who has messages to process: nobody; the system's queue, for which it is enough to be asked at
// least as often as records are read; or a function of the host, which can tell how often it is
// asked.
enum class Turns { nobody, system, host };
Turns turns() noexcept;

}  // namespace kw::platform
