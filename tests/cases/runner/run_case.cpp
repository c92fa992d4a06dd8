#include "run_case.h"

#include "aftermath.h"
#include "case_format.h"

namespace kw::cases {
namespace {

NumberedFileMode mode_of(const Json& file) {
  const std::string mode = text_field(file, "mode");
  if (mode == "input") return NumberedFileMode::input;
  if (mode == "output") return NumberedFileMode::output;
  throw Malformed("open: unknown mode '" + mode + "'");
}

// The files that a case's caller has opened, closed again when the case ends.
class OpenFiles {
 public:
  explicit OpenFiles(const Library& library) : library_(library) {}
  OpenFiles(const OpenFiles&) = delete;
  OpenFiles& operator=(const OpenFiles&) = delete;
  ~OpenFiles() { close(); }
  void open(const Json& file) {
    check_fields(file, "open", {"number", "name", "mode"});
    const auto number = whole_number<std::int16_t>(required_field(file, "number"), "file number");
    library_.open_file(number, text_of(required_field(file, "name"), "name"), mode_of(file));
    numbers_.push_back(number);
  }
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

void set_up(const MethodCaller& caller, const Json& calls) {
  for (const Json& call : calls) {
    const std::string method = text_field(call, "method");
    auto variables = caller.variables(list_field(call, "args"));
    const Called called = caller.call(method, variables);
    if (called.failure)
      throw std::runtime_error("setup call " + method + ": " + failure_text(*called.failure));
  }
}

}  // namespace

Outcome run_case(const Library& library, const Json& one) {
  check_case(one);
  const Json& env = object_field(one, "env");
  std::vector<std::string> unsupported = unsupported_keys(env);
  if (!unsupported.empty()) return {{}, std::move(unsupported)};
  const WorkDirectory directory;
  write_files(directory.path(), object_field(one, "files"));
  directory.make_directories(list_field(env, "mkdir"));
  const FakeHost host(env, directory.system_path(), one["expect"].contains("env_after"));
  const HostInPlace in_place(library, host);
  const MethodCaller caller(library, text_field(one, "class"));
  OpenFiles open_files(library);
  for (const Json& file : list_field(one, "open")) open_files.open(file);
  set_up(caller, list_field(one, "setup"));
  Aftermath after = {{}, caller.variables(list_field(one, "args")), {}, &host, is_repeated(one)};
  const std::string method = text_field(one, "method");
  for (int left = repetitions(one); left > 0; --left)
    after.calls.push_back(caller.call(method, after.variables));
  open_files.close();
  after.files = directory.files();
  return {aftermath_differences(after, one["expect"]), {}};
}

}  // namespace kw::cases
