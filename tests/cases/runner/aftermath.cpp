#include "aftermath.h"

#include <algorithm>

#include "difference.h"

namespace kw::cases {
namespace {

std::string text_difference(const Json& expected, const char* field, const std::u16string& got) {
  const Json* text = optional_field(expected, field);
  if (text == nullptr || units(*text) == got) return "";
  return std::string("error ") + field + ": " + no_match(shown_json(*text), shown(got));
}

// `expected`: null for none.
std::string failure_difference(const Failure& got, const Json* expected) {
  if (expected == nullptr) return "error: " + no_match("none", failure_text(got));
  const Json* number = optional_field(*expected, "number");
  if (number != nullptr && *number != got.number)
    return "error: " + no_match(number->dump(), failure_text(got));
  const std::string source = text_difference(*expected, "source", got.source);
  return !source.empty() ? source : text_difference(*expected, "description", got.description);
}

// Where an error is expected the last call must raise it; those before it may.
std::string failures_difference(const Aftermath& after, const Json* expected) {
  for (const Called& called : after.calls) {
    if (!called.failure) continue;
    const std::string difference = failure_difference(*called.failure, expected);
    if (!difference.empty()) return difference;
  }
  if (expected == nullptr || after.calls.back().failure) return "";
  return "error: " + no_match(expected->dump(), "none");
}

// A call that failed has no result.
std::string list_difference(const std::vector<Called>& calls, const Json& expected) {
  if (expected.size() != calls.size())
    return no_match(std::to_string(expected.size()) + " results", std::to_string(calls.size()));
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const std::string difference = value_difference(calls[i].result.raw(), expected[i]);
    if (!difference.empty()) return "call " + std::to_string(i + 1) + ": " + difference;
  }
  return "";
}

std::string result_difference(const Aftermath& after, const Json& expect) {
  const bool failed = after.calls.back().failure.has_value();
  if (failed || !expect.contains("result")) return "";
  const Json& expected = expect["result"];
  const std::string difference = after.repeated && expected.is_array()
                                     ? list_difference(after.calls, expected)
                                     : value_difference(after.calls.back().result.raw(), expected);
  return difference.empty() ? "" : "result: " + difference;
}

// How much of a message is the library's own wording.
std::u16string_view own_part(const ShownMessage& message) {
  const std::u16string_view text = message.text;
  const std::u16string_view marker = u"occured in FileNameExists: ";
  const std::size_t found = text.find(marker);
  if (found != text.npos) return text.substr(0, found + marker.size());
  const std::size_t end = text.find(u'\r');
  const bool cut = message.buttons == MessageButtons::abort_retry_ignore && end != text.npos;
  return cut ? text.substr(0, end + 1) : text;
}

std::string message_text(const ShownMessage& message) {
  return buttons_name(message.buttons) + " " + shown(message.text);
}

ShownMessage message_of(const Json& expected) {
  const bool ok = expected["buttons"] == "OK";
  return {ok ? MessageButtons::ok : MessageButtons::abort_retry_ignore, units(expected["text"])};
}

// Of what the operating system words itself only the beginning is compared.
std::string messages_difference(const std::vector<ShownMessage>& got, const Json& expected) {
  for (std::size_t i = 0; i < std::min(expected.size(), got.size()); ++i) {
    const ShownMessage wanted = message_of(expected[i]);
    if (got[i].buttons != wanted.buttons || own_part(got[i]) != own_part(wanted))
      return "message " + std::to_string(i + 1) + ": " +
             no_match(message_text(wanted), message_text(got[i]));
  }
  if (got.size() == expected.size()) return "";
  const std::string first = got.size() > expected.size()
                                ? message_text(got[expected.size()])
                                : message_text(message_of(expected[got.size()]));
  return no_match(std::to_string(expected.size()) + " messages", std::to_string(got.size())) +
         "; the first that differs: " + first;
}

std::string drive_difference(const FakeHost& host, const Json& expect) {
  const Json* drive = optional_field(object_field(expect, "env_after"), "drive");
  if (drive == nullptr || units(*drive) == host.drive()) return "";
  return "current drive: " + no_match(shown_json(*drive), shown(host.drive()));
}

void compare_arguments(const Aftermath& after, const Json& expect,
                       std::vector<std::string>& differences) {
  const Json& entries = list_field(expect, "args_after");
  for (std::size_t i = 0; i < entries.size(); ++i)
    for (const std::string& difference : after.variables[i].differences(entries[i]))
      differences.push_back("argument " + std::to_string(i + 1) + ": " + difference);
}

std::vector<std::string> own_differences(const Aftermath& after, const Json& expect) {
  std::vector<std::string> differences;
  const auto note = [&](const std::string& difference) {
    if (!difference.empty()) differences.push_back(difference);
  };
  note(failures_difference(after, optional_field(expect, "error")));
  note(result_difference(after, expect));
  compare_arguments(after, expect, differences);
  if (const Json* files = optional_field(expect, "files_after"))
    note(files_difference(after.files, files_of(*files)));
  note(messages_difference(after.host->messages(), list_field(expect, "messages")));
  note(drive_difference(*after.host, expect));
  return differences;
}

}  // namespace

std::vector<std::string> aftermath_differences(const Aftermath& after, const Json& expect) {
  std::vector<std::string> differences = own_differences(after, expect);
  if (differences.empty()) return differences;
  for (const Json& other : list_field(expect, "alt"))
    if (aftermath_differences(after, other).empty()) return {};
  return differences;
}

std::string failure_text(const Failure& failure) {
  return "error " + std::to_string(failure.number) + " " + shown(failure.description);
}

}  // namespace kw::cases
