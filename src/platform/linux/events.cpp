#include "platform/events.h"

#include "platform/host_functions.h"

namespace kw::platform {

void process_events() {
  const HostFunctions& host = host_functions();
  if (host.process_events != nullptr) host.process_events(host.context);
}

bool host_wants_turns() noexcept { return host_functions().process_events != nullptr; }

}  // namespace kw::platform
