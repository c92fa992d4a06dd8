#include "platform/screen.h"

#include "platform/host_functions.h"

namespace kw::platform {

ScreenSize screen_size() {
  ScreenSize size;
  const HostFunctions& host = host_functions();
  if (host.screen_size != nullptr) host.screen_size(host.context, &size.width, &size.height);
  return size;
}

}  // namespace kw::platform
