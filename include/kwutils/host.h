// kwutils/host.h: what the program that embeds the library supplies, and how it hands it over.
//
// A program that sets nothing gets the system's own services: on Linux, messages go to standard
// error and are answered OK or Abort, the screen is 0 by 0, there are no pending messages, and
// drive C: is the root of the file system.
//
//   kw::HostFunctions host;
//   host.context = &window;
//   host.screen_size = [](void* context, float* width, float* height) KW_STDCALL {
//     *width = static_cast<Window*>(context)->screen_width;
//     *height = static_cast<Window*>(context)->screen_height;
//   };
//   kw::set_host(factory, host);  // true; the library behind a class factory that it answered with
//   kw::set_host(host);           // the library that is linked into this program
#pragma once

#include <cstdint>

#include "kwutils/automation.h"

namespace kw {

enum class MessageButtons : std::int32_t { ok = 0, abort_retry_ignore = 2 };
enum class MessageAnswer : std::int32_t { ok = 1, abort = 3, retry = 4, ignore = 5 };

// Each function may be null: the system's own service is then used. `context` is handed to every
// one of them. Texts that a function returns are given away: the library frees them
// (SysFreeString). A function must not throw, and is called on the thread of the call that needs
// it.
struct HostFunctions {
  std::uint32_t size = sizeof(HostFunctions);  // lets the table grow without breaking its users
  void* context = nullptr;

  // Shows a modal message and waits for the answer.
  MessageAnswer(KW_STDCALL* message_box)(void* context, BSTR text,
                                         MessageButtons buttons) = nullptr;
  // The size of the screen in twips (a twentieth of a point).
  void(KW_STDCALL* screen_size)(void* context, float* width, float* height) = nullptr;
  // Lets the program process what waits in its queue of user-interface messages.
  void(KW_STDCALL* process_events)(void* context) = nullptr;

  // Drives: the letter of the current one; making another the current one, answered with 0 or an
  // error number; the current directory of the current one ("C:\data").
  char16_t(KW_STDCALL* current_drive)(void* context) = nullptr;
  std::int32_t(KW_STDCALL* change_drive)(void* context, char16_t letter) = nullptr;
  BSTR(KW_STDCALL* current_directory)(void* context) = nullptr;

  // The folder of the library's own file and that file's name without its extension.
  BSTR(KW_STDCALL* module_directory)(void* context) = nullptr;
  BSTR(KW_STDCALL* module_name)(void* context) = nullptr;
  // The folder in which the system looks up INI files that are named without a path.
  BSTR(KW_STDCALL* windows_directory)(void* context) = nullptr;
  // The log-in name; null when it cannot be told.
  BSTR(KW_STDCALL* user_name)(void* context) = nullptr;
  // The folder that holds the registry of classes (Linux).
  BSTR(KW_STDCALL* registry_folder)(void* context) = nullptr;
};

// How a file is opened under a number, for clsFileReadWrite's GetRecord: an existing file to read
// from, or one to write to, which is made or emptied.
enum class NumberedFileMode : std::int32_t { input = 1, output = 2 };

// The interface through which a class factory of the library takes all this. Failures to open or
// close a file are 0x800A0000 + the error's number.
//
//   void* answer = nullptr;
//   factory.QueryInterface(kw::kIidHostDoor, &answer);
//   auto* door = static_cast<kw::IHostDoor*>(answer);
//   const kw::String name = u"net.dat";
//   const kw::Variant number(1);
//   door->OpenFile(1, name.get(), kw::NumberedFileMode::input);  // 0
//   store.call(u"GetRecord", {&number}).text();                  // u"NODE id 'B1' nm 'Inlet' node"
//   door->CloseFile(1);                                          // 0
//   door->Release();
struct IHostDoor : IUnknown {
  // Copies the table; null takes everything back. Never fails.
  virtual HRESULT KW_STDCALL SetFunctions(const HostFunctions* functions) = 0;
  // Opens the file `name`, which stays the caller's, under a number from 1 to 32767 that is free.
  // The numbers are those of the whole library, whichever object and thread uses them. 0, or the
  // failure: error 52 for a number out of range or in use and for an impossible name, 53 (file not
  // found, to read from), 76 (path not found), 70 (permission denied, or a directory), 57
  // (input/output). Nothing is open under the number then.
  virtual HRESULT KW_STDCALL OpenFile(std::int16_t number, BSTR name, NumberedFileMode mode) = 0;
  // Closes the file and frees its number, also when what was written cannot be put on the disk: 61
  // (disk full), 57 (input/output). Error 52 when no file is open under the number. Files that are
  // not closed stay open as long as the library is loaded.
  virtual HRESULT KW_STDCALL CloseFile(std::int16_t number) = 0;

 protected:
  ~IHostDoor() = default;
};

inline constexpr GUID kIidHostDoor = {
    0x5B0E27A4, 0x8C1D, 0x4F5E, {0x9A, 0x36, 0x21, 0x7D, 0x40, 0xC8, 0xE5, 0x93}};

// Hands the functions to the library behind a factory of its classes. False when the factory does
// not answer to the interface: it is not one of this library's.
inline bool set_host(IUnknown& factory, const HostFunctions& functions) {
  void* door = nullptr;
  if (factory.QueryInterface(kIidHostDoor, &door) < 0) return false;
  auto* host_door = static_cast<IHostDoor*>(door);
  const HRESULT answer = host_door->SetFunctions(&functions);
  host_door->Release();
  return answer >= 0;
}

// Hands the functions to the library that is linked into this program; HostFunctions() takes
// everything back.
void set_host(const HostFunctions& functions) noexcept;

}  // namespace kw
