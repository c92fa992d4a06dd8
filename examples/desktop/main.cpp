// A small desktop program that hosts the library as its users do: a form whose boxes filter their
// keys through it, a gradient that it paints, a pick list that it fills, and a window whose
// placement it keeps.
//
//   desktop FILE INI-FILE [KWUTILS.DLL]
#include <windows.h>
// After the system's general header.
#include <objbase.h>

#include "desktop/pump_form.h"

namespace {

void run(const char* file, const char* ini_file, const char* dll) {
  const Library library{Classes(dll)};
  PumpStore store(library, file);
  const PumpForm form(library, store, ini_file);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (IsDialogMessageW(form.window(), &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) {
    MessageBoxW(nullptr, L"desktop FILE INI-FILE [KWUTILS.DLL]", L"Pumps", MB_OK);
    return 2;
  }
  CoInitialize(nullptr);
  int status = 0;
  try {
    run(arguments[1], arguments[2], count > 3 ? arguments[3] : nullptr);
  } catch (const std::exception& error) {
    MessageBoxW(nullptr, Text(error.what()).units(), L"Pumps", MB_OK);
    status = 1;
  }
  CoUninitialize();
  return status;
}
