#include "tool/signature.h"

#include "server/class_list.h"
#include "tool/json_writer.h"

namespace kw::tool {
namespace {

using frame::Kind;

std::string_view kind_name(Kind kind) {
  switch (kind) {
    case Kind::text:
      return "text";
    case Kind::int16:
      return "16-bit integer";
    case Kind::int32:
      return "32-bit integer";
    case Kind::single:
      return "single";
    case Kind::real:
      return "double";
    case Kind::boolean:
      return "boolean";
    case Kind::variant:
      return "variant";
    case Kind::collection:
      return "collection";
    case Kind::text_array:
      return "array of text";
    case Kind::int16_array:
      return "array of 16-bit integers";
    case Kind::int32_array:
      return "array of 32-bit integers";
    case Kind::single_array:
      return "array of singles";
    case Kind::real_array:
      return "array of doubles";
    default:
      return "object";
  }
}

std::string parameter_text(const frame::Parameter& parameter) {
  std::string text(parameter.name);
  text.append(": ").append(kind_name(parameter.kind));
  if (parameter.by_reference) text += " by reference";
  return parameter.optional ? "[" + text + "]" : text;
}

void write_parameters(JsonWriter& json, const frame::Method& method) {
  json.key("parameters");
  json.begin_array();
  for (const frame::Parameter& parameter : method.parameters) {
    json.begin_object();
    json.key("name").text(parameter.name);
    json.key("kind").text(kind_name(parameter.kind));
    json.key("by_reference").boolean(parameter.by_reference);
    json.key("optional").boolean(parameter.optional);
    json.end();
  }
  json.end();
}

void write_method(JsonWriter& json, const frame::Method& method) {
  json.begin_object();
  json.key("name").text(method.name);
  json.key("id").number(std::int64_t{method.id});
  write_parameters(json, method);
  if (method.result != Kind::none) json.key("result").text(kind_name(method.result));
  json.key("help").text(method.help);
  json.end();
}

}  // namespace

std::string signature(const frame::Method& method) {
  std::string text(method.name);
  text += "(";
  for (const frame::Parameter& parameter : method.parameters) {
    if (&parameter != &method.parameters.front()) text += ", ";
    text += parameter_text(parameter);
  }
  text += ")";
  if (method.result != Kind::none) text.append(" -> ").append(kind_name(method.result));
  return text;
}

void write_classes(Session& session) {
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_lines();
    for (const frame::ClassTable* table : server::classes()) {
      json.begin_object();
      json.key("class").text(table->description().name);
      json.key("help").text(table->description().help);
      json.end();
    }
    json.end();
    return;
  }
  for (const frame::ClassTable* table : server::classes())
    session.out << table->description().name << ": " << table->description().help << "\n";
}

void write_methods(Session& session, const frame::ClassDescription& of_class) {
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_lines();
    for (const frame::Method& method : of_class.methods) write_method(json, method);
    json.end();
    return;
  }
  for (const frame::Method& method : of_class.methods)
    session.out << signature(method) << "\n    " << method.help << "\n";
}

}  // namespace kw::tool
