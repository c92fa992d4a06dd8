#include "desktop/twips.h"

LONG twips_from_pixels(LONG pixels) {
  const HDC screen = GetDC(nullptr);
  const int density = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return MulDiv(pixels, 1440, density);
}
