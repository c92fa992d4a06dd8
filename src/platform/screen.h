// The screen that the host's windows lie on.
#pragma once

namespace kw::platform {

// In twips (a twentieth of a point).
struct ScreenSize {
  float width = 0;
  float height = 0;
};

// What the host's function answers; without one, the system's screen, which on Linux is 0 by 0.
ScreenSize screen_size();

}  // namespace kw::platform
