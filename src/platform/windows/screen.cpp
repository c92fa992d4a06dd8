#include "platform/screen.h"

#include "platform/host_functions.h"
#include "platform/windows/system.h"

namespace kw::platform {
namespace {

constexpr int kTwipsPerInch = 1440;

float twips(int pixels, int pixels_per_inch) {
  if (pixels_per_inch <= 0) return 0;
  return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(pixels_per_inch);
}

}  // namespace

ScreenSize screen_size() {
  ScreenSize size;
  const HostFunctions& host = host_functions();
  if (host.screen_size != nullptr) {
    host.screen_size(host.context, &size.width, &size.height);
    return size;
  }
  const HDC screen = GetDC(nullptr);
  if (screen == nullptr) return size;
  size.width = twips(GetSystemMetrics(SM_CXSCREEN), GetDeviceCaps(screen, LOGPIXELSX));
  size.height = twips(GetSystemMetrics(SM_CYSCREEN), GetDeviceCaps(screen, LOGPIXELSY));
  ReleaseDC(nullptr, screen);
  return size;
}

}  // namespace kw::platform
