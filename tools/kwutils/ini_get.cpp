#include "base/unicode.h"
#include "kwutils/clsIni.h"
#include "platform/files.h"
#include "tool/call_values.h"
#include "tool/failure.h"
#include "tool/ini_options.h"
#include "tool/json_writer.h"
#include "tool/shown_messages.h"

namespace kw::tool {
namespace {

void answer_text(Output& out, const Variant& value) {
  if (value.is_text()) {
    out << value.text().view();
  } else {
    JsonWriter json(out);
    write_value(json, value.raw());
  }
  out << "\n";
}

ExitCode answer_value(Session& session, const Variant& value) {
  if (session.json) {
    JsonWriter json(session.out);
    json.begin_object();
    json.key("value");
    write_value(json, value.raw());
    json.end();
  } else {
    answer_text(session.out, value);
  }
  return ExitCode::done;
}

[[noreturn]] void refuse_type(const IniOptions& options, std::u16string_view value,
                              const char* why) {
  fail(place_text(options) + " is " + in_quotes(to_utf8(value)) + ", " + why + " " + options.type);
}

Variant typed_value(const IniOptions& options, std::u16string_view value) try {
  const ShownMessages messages;
  Variant typed =
      clsIni().GetIniAndCheck(String(options.section_name()), String(options.key_name()),
                              String::from_utf8(options.type), String(file_name(options)));
  if (messages.any()) refuse_type(options, value, "which is no");
  return typed;
} catch (const Error&) {
  refuse_type(options, value, "which is too large for");
}

ExitCode run_get(Session& session, const IniOptions& options) {
  const std::u16string name = file_name(options);
  if (!options.fallback || platform::files().exists(name)) read_content(options);
  const String value = clsIni().GetIni(options.section_name(), options.key_name(), u"", name);
  if (value.empty() && options.fallback)
    return answer_value(session, Variant(String::from_utf8(*options.fallback)));
  if (value.empty()) return not_found(session, options);
  return answer_value(
      session, options.type.empty() ? Variant(value.view()) : typed_value(options, value.view()));
}

}  // namespace

void add_ini_get(Arguments ini, Session& session) {
  auto [line, options] = add_command<IniOptions>(
      ini, session, "get", "Show a value",
      "kwutils ini get plant.ini Pump Flow\n"
      "  kwutils ini get plant.ini Pump Flow --type double --default 1.5\n\n"
      "An empty value counts as missing.",
      &run_get);
  add_entry(line, options);
  line.add_option(
          "--type", options.type,
          "Check the value: string, boolean, integer (16 bits), long (32 bits), single or double")
      .one_of({"string", "boolean", "bool", "integer", "long", "single", "double"});
  line.add_option("--default", options.fallback, "What to show where there is no value")
      .type_name("VALUE");
}

}  // namespace kw::tool
