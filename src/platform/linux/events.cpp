#include "platform/events.h"

#include "platform/host_functions.h"

namespace kw::platform {

void process_events() {
  const HostFunctions& host = host_functions();
  if (host.process_events != nullptr) host.process_events(host.context);
}

Turns turns() noexcept {
  return host_functions().process_events != nullptr ? Turns::host : Turns::nobody;
}

}  // namespace kw::platform
