#include "tool/failure.h"

#include <system_error>

namespace kw::tool {

void fail(std::string message) { throw Failure(ExitCode::failed, std::move(message)); }

void fail_usage(std::string message) { throw Failure(ExitCode::usage, std::move(message)); }

std::string in_quotes(std::string_view text) {
  const bool apostrophe = text.find('\'') != text.npos;
  const char quote = apostrophe && text.find('"') == text.npos ? '"' : '\'';
  return quote + std::string(text) + quote;
}

std::string reason(const Error& error, std::string_view file) {
  const std::string_view standard = standard_text(error.number);
  const bool names_the_file =
      error.text() == std::string(standard) + ": '" + std::string(file) + "'";
  std::string text(names_the_file ? standard : error.text());
  if (error.number == ErrorNumber::file_not_found || error.system_code == 0) return text;
  const std::string more = std::system_category().message(error.system_code);
  if (more != standard) text += " (" + more + ")";
  return text;
}

}  // namespace kw::tool
