// What ends a command: a message for the terminal and an exit status.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "kwutils/error.h"
#include "tool/exit_code.h"

namespace kw::tool {

class Failure : public std::exception {
 public:
  Failure(ExitCode exit_code, std::string text) : code(exit_code), message(std::move(text)) {}
  const char* what() const noexcept override { return message.c_str(); }

  ExitCode code;
  std::string message;
};

[[noreturn]] void fail(std::string message);
[[noreturn]] void fail_usage(std::string message);

// Why an operation on `file` failed, for a message that names the file already.
std::string reason(const Error& error, std::string_view file);

std::string in_quotes(std::string_view text);

// Does something with a file. A failure's message says what was being done ("cannot list NODE"), to
// which file, and why it failed.
template <class Function>
auto working_on(std::string_view what, std::string_view file, Function&& function) {
  try {
    return function();
  } catch (const Error& error) {
    fail(std::string(what) + " in " + in_quotes(file) + ": " + reason(error, file));
  }
}

}  // namespace kw::tool
