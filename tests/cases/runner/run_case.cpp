#include "run_case.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "base/unicode.h"
#include "fake_host.h"
#include "kwutils/error.h"
#include "typed_value.h"
#include "work_directory.h"

namespace kw::cases {
namespace {

struct Failure {
  std::int64_t number = 0;
  std::u16string source;
  std::u16string description;
};

// What one call left behind.
struct Called {
  Variant result;
  std::optional<Failure> failure;
};

// The error numbers that stand for the standard statuses.
std::int64_t number_of(HRESULT failure) {
  if ((static_cast<std::uint32_t>(failure) & 0xFFFF0000u) == 0x800A0000u) return failure & 0xFFFF;
  switch (failure) {
    case status::kOutOfMemory:
      return 7;
    case status::kOverflow:
      return 6;
    case status::kTypeMismatch:
      return 13;
    case status::kMemberNotFound:
    case status::kUnknownName:
      return 438;
    case status::kParameterNotOptional:
      return 449;
    case status::kBadParameterCount:
      return 450;
    case status::kNotImplemented:
      return 445;
    default:
      return failure;
  }
}

std::u16string text_of(BSTR text) {
  std::u16string result(text != nullptr ? text : u"", SysStringLen(text));
  SysFreeString(text);
  return result;
}

class Caller {
 public:
  Caller(const Library& library, Object object) : library_(library), object_(std::move(object)) {}

  // The variables of a call, in the order of the parameters.
  std::vector<CallerVariable> variables(const Json& args) const {
    std::vector<CallerVariable> result;
    result.reserve(args.size());
    for (const Json& typed : args)
      result.emplace_back(typed, [this] { return library_.make_collection(); });
    return result;
  }

  Called call(const std::string& method, std::vector<CallerVariable>& variables) const {
    std::vector<VARIANT> reversed;
    for (auto at = variables.rbegin(); at != variables.rend(); ++at)
      reversed.push_back(at->argument());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<std::uint32_t>(reversed.size()),
                             0};
    std::u16string name = from_utf8(method);
    char16_t* names[] = {name.data()};
    DISPID id = 0;
    Called called;
    HRESULT answer = object_.pointer()->GetIDsOfNames(kNullGuid, names, 1, 0, &id);
    EXCEPINFO exception = {};
    std::uint32_t bad = 0;
    if (answer >= 0)
      answer = object_.pointer()->Invoke(id, kNullGuid, 0, kDispatchMethod, &parameters,
                                         called.result.address(), &exception, &bad);
    if (answer < 0) called.failure = failure(answer, exception);
    return called;
  }

 private:
  static Failure failure(HRESULT answer, const EXCEPINFO& exception) {
    if (answer != status::kException) return {number_of(answer), {}, {}};
    SysFreeString(exception.bstrHelpFile);
    return {number_of(exception.scode), text_of(exception.bstrSource),
            text_of(exception.bstrDescription)};
  }

  const Library& library_;
  Object object_;
};

std::string text_difference(const Json& expected, const char* field, const std::u16string& got) {
  if (!expected.contains(field) || expected[field].is_null() || units(expected[field]) == got)
    return "";
  return std::string("error ") + field + ": expected " + shown(units(expected[field])) + ", got " +
         shown(got);
}

std::string failure_difference(const std::optional<Failure>& got, const Json& expected) {
  if (expected.is_null()) {
    if (!got) return "";
    return "error: expected none, got " + std::to_string(got->number) + " " +
           shown(got->description);
  }
  if (!got) return "error: expected " + expected.dump() + ", got none";
  if (expected.contains("number") && !expected["number"].is_null() &&
      expected["number"].get<std::int64_t>() != got->number)
    return "error: expected " + expected.dump() + ", got " + std::to_string(got->number);
  const std::string source = text_difference(expected, "source", got->source);
  return !source.empty() ? source : text_difference(expected, "description", got->description);
}

// All that can be compared once the calls are made.
struct Aftermath {
  std::vector<Called> calls;
  std::vector<CallerVariable> variables;
  Files files;
  const FakeHost* host;
};

std::string result_difference(const Aftermath& after, const Json& expected, bool repeated) {
  if (!repeated) return value_difference(after.calls.back().result.raw(), expected);
  if (!expected.is_array() || expected.size() != after.calls.size())
    return "expected a list of " + std::to_string(after.calls.size()) + " results";
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::string difference = value_difference(after.calls[i].result.raw(), expected[i]);
    if (!difference.empty()) return "call " + std::to_string(i + 1) + ": " + difference;
  }
  return "";
}

std::string failures_difference(const Aftermath& after, const Json& expected) {
  for (const Called& called : after.calls) {
    const bool last = &called == &after.calls.back();
    const std::string difference =
        failure_difference(called.failure, last ? expected : Json(nullptr));
    if (!difference.empty()) return difference;
  }
  return "";
}

void compare_arguments(const Aftermath& after, const Json& expected,
                       std::vector<std::string>& differences) {
  for (std::size_t i = 0; i < std::min(expected.size(), after.variables.size()); ++i) {
    if (expected[i].is_null()) continue;
    const std::string difference = after.variables[i].difference(expected[i]);
    if (!difference.empty())
      differences.push_back("argument " + std::to_string(i + 1) + ": " + difference);
  }
}

Json field(const Json& from, const char* name) {
  return from.contains(name) ? from[name] : Json(nullptr);
}

std::vector<std::string> compare(const Aftermath& after, const Json& expect, bool repeated) {
  std::vector<std::string> differences;
  const auto note = [&](const std::string& what, const std::string& difference) {
    if (!difference.empty()) differences.push_back(what + difference);
  };
  const Json error = field(expect, "error");
  note("", failures_difference(after, error));
  const bool failed = after.calls.back().failure.has_value();
  if (!failed && error.is_null())
    note("result: ", result_difference(after, field(expect, "result"), repeated));
  if (expect.contains("args_after")) compare_arguments(after, expect["args_after"], differences);
  if (expect.contains("files_after") && !expect["files_after"].is_null())
    note("", files_difference(after.files, files_of(expect["files_after"])));
  note("", messages_difference(after.host->messages(), field(expect, "messages")));
  if (expect.contains("env_after") && expect["env_after"].contains("drive") &&
      from_utf8(expect["env_after"]["drive"].get<std::string>()) != after.host->drive())
    differences.push_back("current drive: expected " + expect["env_after"]["drive"].dump() +
                          ", got " + shown(after.host->drive()));
  return differences;
}

std::vector<std::string> compare_with_alternatives(const Aftermath& after, const Json& expect,
                                                   bool repeated) {
  std::vector<std::string> differences = compare(after, expect, repeated);
  if (differences.empty() || !expect.contains("alt")) return differences;
  for (const Json& other : expect["alt"])
    if (compare(after, other, repeated).empty()) return {};
  return differences;
}

// The files that a case's caller has opened, closed again when the case ends.
class OpenFiles {
 public:
  OpenFiles(const Library& library, const Json& open) : library_(library) {
    for (const Json& file : open) {
      const auto number = file.at("number").get<std::int16_t>();
      const auto mode =
          file.at("mode") == "output" ? NumberedFileMode::output : NumberedFileMode::input;
      library_.open_file(number, units(file.at("name")), mode);
      numbers_.push_back(number);
    }
  }
  OpenFiles(const OpenFiles&) = delete;
  OpenFiles& operator=(const OpenFiles&) = delete;
  ~OpenFiles() { close(); }
  void close() {
    for (const std::int16_t number : numbers_) library_.close_file(number);
    numbers_.clear();
  }

 private:
  const Library& library_;
  std::vector<std::int16_t> numbers_;
};

class HostInPlace {
 public:
  HostInPlace(const Library& library, const FakeHost& host) : library_(library) {
    library_.set_host(&host.functions());
  }
  HostInPlace(const HostInPlace&) = delete;
  HostInPlace& operator=(const HostInPlace&) = delete;
  ~HostInPlace() { library_.set_host(nullptr); }

 private:
  const Library& library_;
};

}  // namespace

Outcome run_case(const Library& library, const Json& one) {
  const Json env = one.value("env", Json::object());
  const WorkDirectory directory;
  if (one.contains("files")) directory.write(one["files"]);
  if (env.contains("mkdir")) directory.make_directories(env["mkdir"]);
  const FakeHost host(env, directory.path().parent_path() / "windir");
  const HostInPlace in_place(library, host);
  const Caller caller(library, library.create(one.at("class")));
  OpenFiles open_files(library, one.value("open", Json::array()));
  for (const Json& before : one.value("setup", Json::array())) {
    auto variables = caller.variables(before.value("args", Json::array()));
    caller.call(before.at("method"), variables);
  }
  Aftermath after;
  after.variables = caller.variables(one.value("args", Json::array()));
  const int times = one.value("repeat", 1);
  for (int i = 0; i < times; ++i)
    after.calls.push_back(caller.call(one.at("method"), after.variables));
  open_files.close();
  after.files = directory.files();
  after.host = &host;
  std::filesystem::remove_all(directory.path().parent_path() / "windir");
  return {compare_with_alternatives(after, one.at("expect"), one.contains("repeat")), {}};
}

}  // namespace kw::cases
