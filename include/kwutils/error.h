// kw::Error: the one exception of the library.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace kw {

// The numbers of the errors that the library raises. They reach a caller as Err.Number, or as the
// status 0x800A0000 + number.
enum class ErrorNumber : std::int32_t {
  invalid_argument = 5,  // invalid procedure call or argument
  overflow = 6,          // a number does not fit its type
  out_of_memory = 7,
  subscript_out_of_range = 9,  // array index or collection position
  array_locked = 10,           // a fixed or locked array cannot be resized
  division_by_zero = 11,
  type_mismatch = 13,
  bad_file_name_or_number = 52,
  file_not_found = 53,
  bad_file_mode = 54,  // the file is open in another mode
  io_error = 57,       // any other input or output failure
  file_exists = 58,
  disk_full = 61,
  input_past_end = 62,
  bad_record_number = 63,   // a position that cannot be sought
  device_unavailable = 68,  // no such drive, or the drive is not ready
  permission_denied = 70,
  path_file_access = 75,
  path_not_found = 76,
  object_not_set = 91,
  cannot_create_object = 429,  // no library serves the class, or it cannot be loaded
  no_such_member = 438,
  key_exists = 457,              // a collection already holds the key
  caught_while_reading = 10001,  // the library's own: see clsFileReadWrite
};

// The standard text of an error number ("File not found"); a general text for an unknown one.
std::string_view standard_text(ErrorNumber number) noexcept;

// Thrown where a failure is known, translated once where a call leaves the library.
//
//   try {
//     kw::clsFileReadWrite().GetEntity(u"none.dat", u"node", u"B1");
//   } catch (const kw::Error& error) {
//     error.text();  // "File not found: 'none.dat'"
//   }
class Error : public std::exception {
 public:
  explicit Error(ErrorNumber error_number) : number(error_number) {}
  // `place` names the thing that failed, a file name for example (UTF-8); it follows the standard
  // text in the description. `code` is the operating system's own, 0 when there is none.
  Error(ErrorNumber error_number, std::string_view place, std::int32_t code = 0);

  ErrorNumber number;
  std::string source;  // UTF-8; empty: "kwUtils." and the name of the class whose method failed
  std::string description;  // UTF-8; empty: the standard text of the number
  std::int32_t system_code = 0;

  // The description, or the standard text when there is none.
  std::string_view text() const noexcept;
  const char* what() const noexcept override { return text().data(); }
};

}  // namespace kw
