#include "case_format.h"

#include <algorithm>
#include <sstream>

#include "caller_variable.h"
#include "fields.h"
#include "work_directory.h"

namespace kw::cases {
namespace {

// Keeps a case from filling the memory with results.
constexpr int kMostRepetitions = 1'000'000;

void check_messages(const Json& messages) {
  for (const Json& message : messages) {
    check_fields(message, "message", {"buttons", "text"});
    text_field(message, "text");
    const std::string buttons = text_field(message, "buttons");
    if (buttons != "OK" && buttons != "AbortRetryIgnore")
      throw Malformed("unknown buttons: " + buttons);
  }
}

void check_error(const Json& error) {
  check_fields(error, "error", {"number", "source", "description"});
  if (const Json* number = optional_field(error, "number"))
    whole_number<std::int32_t>(*number, "error number");
  for (const char* name : {"source", "description"})
    if (const Json* text = optional_field(error, name)) text_of(*text, name);
}

void check_result(const Json& result, bool repeated) {
  if (!repeated) {
    if (result.is_array()) throw Malformed("a list of results needs 'repeat'");
    return check_expected(result);
  }
  if (result.is_null()) return;
  if (!result.is_array()) throw Malformed("the result of a repeated call is a list of results");
  for (const Json& one : result) check_expected(one);
}

void check_arguments_after(const Json& entries, std::size_t parameters) {
  if (!entries.is_array()) throw Malformed("args_after: no list");
  if (entries.size() != parameters)
    throw Malformed("args_after has " + std::to_string(entries.size()) + " entries for " +
                    std::to_string(parameters) + " args");
  for (const Json& entry : entries) CallerVariable::check_expected_entry(entry);
}

void check_expect(const Json& expect, const Json& one) {
  check_fields(expect, "expect",
               {"result", "args_after", "files_after", "messages", "error", "env_after", "alt"});
  if (expect.contains("result")) check_result(expect["result"], is_repeated(one));
  if (const Json* entries = optional_field(expect, "args_after"))
    check_arguments_after(*entries, list_field(one, "args").size());
  files_of(object_field(expect, "files_after"));
  check_messages(list_field(expect, "messages"));
  if (const Json* error = optional_field(expect, "error")) check_error(*error);
  const Json& env_after = object_field(expect, "env_after");
  check_fields(env_after, "env_after", {"drive"});
  if (const Json* drive = optional_field(env_after, "drive")) text_of(*drive, "drive");
  for (const Json& other : list_field(expect, "alt")) check_expect(other, one);
}

void check_setup(const Json& setup) {
  for (const Json& call : setup) {
    check_fields(call, "setup", {"method", "args"});
    text_field(call, "method");
    list_field(call, "args");
  }
}

}  // namespace

void check_case(const Json& one) {
  check_fields(one, "case",
               {"id", "class", "method", "files", "setup", "open", "repeat", "args", "env",
                "expect", "tags"});
  text_field(one, "class");
  text_field(one, "method");
  if (const Json* id = optional_field(one, "id")) text_of(*id, "id");
  object_field(one, "files");
  object_field(one, "env");
  list_field(one, "open");
  list_field(one, "args");
  check_setup(list_field(one, "setup"));
  repetitions(one);
  check_expect(required_field(one, "expect"), one);
}

bool is_repeated(const Json& one) { return optional_field(one, "repeat") != nullptr; }

int repetitions(const Json& one) {
  if (!is_repeated(one)) return 1;
  const auto times = whole_number<std::int32_t>(one["repeat"], "repeat");
  if (times < 1) throw Malformed("repeat must be at least 1");
  if (times > kMostRepetitions)
    throw Malformed("repeat must be at most " + std::to_string(kMostRepetitions));
  return times;
}

std::vector<std::string> unsupported_keys(const Json& env) {
  static const std::vector<std::string> supplied = [] {
    std::istringstream words(KW_CASE_ENV_KEYS);
    return std::vector<std::string>(std::istream_iterator<std::string>(words), {});
  }();
  std::vector<std::string> result;
  for (const auto& entry : env.items())
    if (std::find(supplied.begin(), supplied.end(), entry.key()) == supplied.end())
      result.push_back(entry.key());
  return result;
}

}  // namespace kw::cases
