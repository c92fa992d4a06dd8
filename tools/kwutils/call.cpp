#include <optional>
#include <string>
#include <vector>

#include "base/unicode.h"
#include "frame/factory.h"
#include "kwutils/object.h"
#include "server/class_list.h"
#include "tool/call_values.h"
#include "tool/command.h"
#include "tool/failure.h"
#include "tool/signature.h"

namespace kw::tool {
namespace {

struct CallOptions {
  std::string class_name;
  std::string method;
};

constexpr std::string_view kLeftOut = "--";

// "--" leaves a parameter out; one more hyphen makes a text of hyphens out of it.
std::optional<std::string_view> given(std::string_view argument) {
  if (argument == kLeftOut) return std::nullopt;
  const bool hyphens = argument.size() > 2 && argument.find_first_not_of('-') == argument.npos;
  return hyphens ? argument.substr(1) : argument;
}

using Words = std::vector<std::string>;

Variant value_of(const Words& arguments, std::size_t position, const frame::Parameter& parameter) {
  if (position < arguments.size())
    if (const auto text = given(arguments[position])) return read_argument(*text, parameter);
  if (parameter.optional) return Variant::missing();
  if (parameter.by_reference) return initial_value(parameter);
  fail_usage("argument " + in_quotes(parameter.name) + " is missing");
}

std::string shown(const Variant& value) {
  Output text;
  JsonWriter json(text);
  json.begin_array();
  write_value(json, value.raw());
  json.end();
  return std::string(text.view());
}

struct Answer {
  HRESULT status = 0;
  Variant result;
  EXCEPINFO exception = {};
  std::uint32_t bad_argument = 0;
};

class Call {
 public:
  Call(const frame::Method& method, const Words& arguments) : method_(method) {
    for (const frame::Parameter& parameter : method.parameters) {
      values_.push_back(value_of(arguments, values_.size(), parameter));
      before_.push_back(shown(values_.back()));
    }
  }

  Answer run(IDispatch& object) {
    std::vector<VARIANT> reversed;
    for (std::size_t i = values_.size(); i-- > 0;)
      reversed.push_back(argument_for(values_[i], method_.parameters[i]));
    DISPPARAMS sent = {reversed.data(), nullptr, static_cast<std::uint32_t>(reversed.size()), 0};
    Answer answer;
    answer.status = object.Invoke(method_.id, kNullGuid, 0, kDispatchMethod, &sent,
                                  answer.result.address(), &answer.exception, &answer.bad_argument);
    return answer;
  }

  // The by-reference arguments that the call has changed.
  void write_changed(JsonWriter& json) const {
    json.key("arguments");
    json.begin_object();
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (!method_.parameters[i].by_reference || shown(values_[i]) == before_[i]) continue;
      json.key(method_.parameters[i].name);
      write_value(json, values_[i].raw());
    }
    json.end();
  }

 private:
  const frame::Method& method_;
  std::vector<Variant> values_;
  std::vector<std::string> before_;
};

void write_error(JsonWriter& json, const Answer& answer) {
  const auto status = static_cast<std::uint32_t>(answer.status);
  const bool run_time = answer.status == status::kException;
  json.key("error");
  json.begin_object();
  json.key("number").number(run_time ? std::int64_t{answer.exception.scode & 0xFFFF}
                                     : std::int64_t{status});
  const String source = String::attach(answer.exception.bstrSource);
  const String description = String::attach(answer.exception.bstrDescription);
  if (!source.empty()) json.key("source").text(source.view());
  if (!description.empty()) json.key("description").text(description.view());
  json.end();
}

const frame::ClassTable& class_named(const std::string& name) {
  const frame::ClassTable* table = server::find_class(from_utf8(name));
  if (table == nullptr) fail_usage("there is no class " + in_quotes(name) + "; see 'kwutils call'");
  return *table;
}

const frame::Method& method_named(const frame::ClassTable& table, const std::string& name) {
  const frame::Method* method = table.method(from_utf8(name));
  if (method == nullptr)
    fail_usage("class " + std::string(table.description().name) + " has no method " +
               in_quotes(name) + "; see 'kwutils call " + std::string(table.description().name) +
               "'");
  return *method;
}

Object instance_of(const frame::ClassTable& table) {
  void* object = nullptr;
  if (frame::create_object(table, kIidDispatch, &object) < 0)
    fail("cannot create a " + std::string(table.description().name));
  return Object::attach(static_cast<IDispatch*>(object));
}

ExitCode run_call(Session& session, const CallOptions& options) {
  if (options.class_name.empty()) {
    write_classes(session);
    return ExitCode::done;
  }
  const frame::ClassTable& table = class_named(options.class_name);
  if (options.method.empty()) {
    write_methods(session, table.description());
    return ExitCode::done;
  }
  const frame::Method& method = method_named(table, options.method);
  if (session.call_arguments.size() > method.parameters.size())
    fail_usage(std::string(method.name) + " takes " + std::to_string(method.parameters.size()) +
               (method.parameters.size() == 1 ? " argument: " : " arguments: ") +
               signature(method));
  Call call(method, session.call_arguments);
  const Object object = instance_of(table);
  const Answer answer = call.run(*object.pointer());
  JsonWriter json(session.out);
  json.begin_object();
  if (answer.status < 0) {
    write_error(json, answer);
  } else if (method.result != frame::Kind::none) {
    json.key("result");
    write_value(json, answer.result.raw());
  }
  call.write_changed(json);
  json.end();
  return answer.status < 0 ? ExitCode::failed : ExitCode::done;
}

}  // namespace

void add_call(Arguments app, Session& session) {
  auto [line, options] = add_command<CallOptions>(
      app, session, "call", "Call any method of a class, late-bound",
      "kwutils call clsParse ParseToken \"id 'B 2' nm Outlet\" 2\n\n"
      "Without METHOD, lists the methods of the class; without CLASS, the classes.\n"
      "All that follows METHOD is an argument. \"--\" leaves an optional parameter out; a "
      "parameter\n"
      "by reference that is left out starts empty. Arrays and collections are written as JSON:\n"
      "[\"a\", \"b\"] has the lower bound 0, {\"lower\": 1, \"values\": [2, 3]} another one; an "
      "object\n"
      "{\"key\": \"item\"} is a collection with keys.",
      &run_call);
  line.add_option("CLASS", options.class_name, "Name of the class");
  line.add_option("METHOD", options.method, "Name of the method, in any case");
}

}  // namespace kw::tool
