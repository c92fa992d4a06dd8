#include "desktop/placement.h"

#include <cmath>

#include "client/failure.h"

namespace {

// The pixels that a percentage stands for; `other` when the file has none.
int pixels(const Library& library, const Text& ini_file, const char* key, int screen, int other) {
  const Text section("window"), name(key), none;
  Text value;
  check(library.ini->GetIni(section.get(), name.get(), none.get(), ini_file.get(), value.place()));
  if (value.empty()) return other;
  return static_cast<int>(std::lround(std::atof(value.bytes().c_str()) * screen / 100));
}

}  // namespace

void restore_placement(HWND window, const Library& library, const Text& ini_file) {
  const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
  RECT place{};
  GetWindowRect(window, &place);
  SetWindowPos(window, nullptr, pixels(library, ini_file, "Left", width, place.left),
               pixels(library, ini_file, "Top", height, place.top),
               pixels(library, ini_file, "Width", width, place.right - place.left),
               pixels(library, ini_file, "Height", height, place.bottom - place.top),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void save_placement(FormObject& form, const Library& library, Text& ini_file) {
  VARIANT object{};
  V_VT(&object) = VT_DISPATCH;
  V_DISPATCH(&object) = &form;
  check(library.ini->WriteWindowInIni(&object, ini_file.place()));
}
