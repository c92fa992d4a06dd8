#include "server/idl_writer.h"

#include <string_view>

#include "frame/class_table.h"
#include "frame/collection_object.h"
#include "platform/guid_text.h"
#include "server/class_list.h"

namespace kw::server {
namespace {

using frame::Kind;

constexpr std::string_view kHead =
    R"(// Made from the descriptions of the classes by kwutils-idl; changes by hand are lost.
import "automation_base.idl";

[
  uuid(D0A0F987-3C26-11D2-805F-00A0244600DF),
  version(9.18),
  lcid(0x409),
  helpstring("kwUtils: keyed entity files, their parser, INI files, paths, sorts and data entry")
]
library kwUtils {
  importlib("stdole2.tlb");

  typedef [
    uuid(141AA2E2-593E-11D2-805F-00A0244600DF), version(1.0),
    helpstring("How a file is to be opened")
  ] enum FileOpenModes {
    NO_FILE = -1,
    REPLACE_FILE = 1,
    READ_FILE = 2,
    APPEND_FILE = 3,
    BINARY_FILE = 4,
    BINARY_WRITE_FILE = 5
  } FileOpenModes;

  typedef [
    uuid(3C12A71A-08D8-4CE4-B2CC-04CCBF6C970C), version(1.0),
    helpstring("What a comment of an entity file ends with")
  ] enum eCommentType {
    LineComment = 1,
    BlockComment = 2
  } eCommentType;

  typedef [
    uuid(21BAB82A-3781-4EBE-9E4A-E71C84DB74CF), version(1.0),
    helpstring("How comments of one kind begin and end")
  ] struct tCommentSpec {
    BSTR sCommentKey;
    BSTR sCommentEnd;
    long lCommentLen;
    eCommentType tCommentType;
  } tCommentSpec;
)";

std::string_view idl_type(Kind kind) {
  switch (kind) {
    case Kind::text:
      return "BSTR";
    case Kind::int16:
      return "short";
    case Kind::int32:
      return "long";
    case Kind::single:
      return "float";
    case Kind::real:
      return "double";
    case Kind::boolean:
      return "VARIANT_BOOL";
    case Kind::variant:
      return "VARIANT";
    case Kind::object:
      return "IDispatch*";
    case Kind::unknown:
      return "IUnknown*";
    case Kind::collection:
      return "_Collection*";
    case Kind::text_array:
      return "SAFEARRAY(BSTR)";
    case Kind::int16_array:
      return "SAFEARRAY(short)";
    case Kind::int32_array:
      return "SAFEARRAY(long)";
    case Kind::single_array:
      return "SAFEARRAY(float)";
    case Kind::real_array:
      return "SAFEARRAY(double)";
    case Kind::none:
      break;
  }
  return "void";
}

bool takes_default(Kind kind) {
  return kind == Kind::int16 || kind == Kind::int32 || kind == Kind::boolean;
}

// A keyword of the language in another case: names are looked up without regard to it.
std::string_view idl_name(std::string_view name) { return name == "default" ? "Default" : name; }

std::string parameter_text(const frame::Parameter& parameter) {
  std::string text = parameter.by_reference ? "[in, out" : "[in";
  if (parameter.optional && takes_default(parameter.kind))
    text += ", defaultvalue(" + std::to_string(parameter.default_value) + ")";
  else if (parameter.optional)
    text += ", optional";
  text += "] ";
  text += idl_type(parameter.kind);
  if (parameter.by_reference) text += '*';
  return (text += ' ') += idl_name(parameter.name);
}

std::string number_text(DISPID id) {
  if (id < frame::kFirstMember) return std::to_string(id);
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "0x600300";
  text += kDigits[static_cast<std::size_t>(id >> 4 & 0xF)];
  text += kDigits[static_cast<std::size_t>(id & 0xF)];
  return text;
}

std::string help_text(std::string_view help) {
  std::string text = "helpstring(\"";
  for (const char c : help) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + "\")";
}

std::string method_text(const frame::Method& method) {
  std::string text =
      "    [id(" + number_text(method.id) + "), " + help_text(method.help) + "]\n    HRESULT ";
  (text += method.name) += '(';
  std::string_view separator = "\n        ";
  const auto add = [&](const std::string& parameter) {
    (text += separator) += parameter;
    separator = ",\n        ";
  };
  for (const frame::Parameter& parameter : method.parameters) add(parameter_text(parameter));
  if (method.result != Kind::none)
    add("[out, retval] " + std::string(idl_type(method.result)) + "* result");
  return text + ");\n";
}

std::string uuid_text(const GUID& guid) {
  const std::string text = platform::guid_text(guid);
  return "uuid(" + text.substr(1, text.size() - 2) + ")";
}

std::string version_text(const frame::Version& version) {
  return "version(" + std::to_string(version.major) + "." + std::to_string(version.minor) + ")";
}

// The collection's interface is the hosts', not ours: without the two attributes that it lacks here
// the system leaves its own entries of that interface alone when the type library is registered.
std::string_view attributes(const frame::ClassDescription& description) {
  const bool ours = description.class_id != kNullGuid;
  return ours ? "hidden, dual, nonextensible, oleautomation" : "hidden, nonextensible";
}

std::string interface_text(const frame::ClassDescription& description) {
  std::string text = "\n  [\n    odl, " + uuid_text(description.interface_id) + ", " +
                     version_text(description.version) + ",\n    ";
  (text += attributes(description)) += "\n  ]\n  interface _";
  (text += description.name) += " : IDispatch {\n";
  for (const frame::Method& method : description.methods) text += method_text(method);
  return text + "  };\n";
}

std::string class_text(const frame::ClassDescription& description) {
  const std::string name(description.name);
  std::string text = "\n  [\n    " + uuid_text(description.class_id) + ", " +
                     version_text(description.version) + ",\n    " + help_text(description.help) +
                     "\n  ]\n  coclass " + name + " {\n    [default] interface _" + name +
                     ";\n  };\n";
  // Earlier forms of the interface, under the names that older callers were built with.
  for (int version = 0; version < description.earlier_versions; ++version)
    text += "  typedef [public, hidden] _" + name + " " + name + "___v" + std::to_string(version) +
            ";\n";
  return text;
}

}  // namespace

std::string interface_definitions() {
  std::string text(kHead);
  text += interface_text(frame::collection_table().description());
  for (const frame::ClassTable* table : classes()) text += interface_text(table->description());
  for (const frame::ClassTable* table : classes()) text += class_text(table->description());
  return text + "};\n";
}

}  // namespace kw::server
