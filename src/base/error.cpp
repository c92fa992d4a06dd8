#include "kwutils/error.h"

namespace kw {

std::string_view standard_text(ErrorNumber number) noexcept {
  switch (number) {
    case ErrorNumber::invalid_argument:
      return "Invalid procedure call or argument";
    case ErrorNumber::overflow:
      return "Overflow";
    case ErrorNumber::out_of_memory:
      return "Out of memory";
    case ErrorNumber::subscript_out_of_range:
      return "Subscript out of range";
    case ErrorNumber::array_locked:
      return "This array is fixed or temporarily locked";
    case ErrorNumber::division_by_zero:
      return "Division by zero";
    case ErrorNumber::type_mismatch:
      return "Type mismatch";
    case ErrorNumber::bad_file_name_or_number:
      return "Bad file name or number";
    case ErrorNumber::file_not_found:
      return "File not found";
    case ErrorNumber::bad_file_mode:
      return "Bad file mode";
    case ErrorNumber::io_error:
      return "Device I/O error";
    case ErrorNumber::file_exists:
      return "File already exists";
    case ErrorNumber::disk_full:
      return "Disk full";
    case ErrorNumber::input_past_end:
      return "Input past end of file";
    case ErrorNumber::bad_record_number:
      return "Bad record number";
    case ErrorNumber::device_unavailable:
      return "Device unavailable";
    case ErrorNumber::permission_denied:
      return "Permission denied";
    case ErrorNumber::path_file_access:
      return "Path/File access error";
    case ErrorNumber::path_not_found:
      return "Path not found";
    case ErrorNumber::object_not_set:
      return "Object variable not set";
    case ErrorNumber::cannot_create_object:
      return "Cannot create object";
    case ErrorNumber::no_such_member:
      return "Object doesn't support this property or method";
    case ErrorNumber::key_exists:
      return "This key is already associated with an element of this collection";
    case ErrorNumber::caught_while_reading:
      break;
  }
  return "Application-defined or object-defined error";
}

Error::Error(ErrorNumber error_number, std::string_view place, std::int32_t code)
    : number(error_number), system_code(code) {
  description = standard_text(error_number);
  if (!place.empty()) description.append(": '").append(place).append("'");
}

std::string_view Error::text() const noexcept {
  return description.empty() ? standard_text(number) : std::string_view(description);
}

}  // namespace kw
