#include "config/description.h"

#include "frame/method.h"
#include "kwutils/clsIni.h"

namespace kw {
namespace {

using frame::method;
using frame::optional;
using C = clsIni;

std::vector<frame::Method> methods() {
  return {
      method<&C::GetIni>(0, "GetIni", {"Section", "Key", "default", "File"},
                         "The value of a key, or the default."),
      method<&C::GetIniAndCheck>(
          1, "GetIniAndCheck",
          {"sectionName", "keyName", "keyType", "iniFileName", optional("vntDefaultValue")},
          "The value of a key as the type named; tells the user what is wrong with it."),
      method<&C::GetInt>(2, "GetInt", {"Section", "Key", "default", "File"},
                         "The 16-bit number that a value begins with; the default for 0."),
      method<&C::WriteIni>(3, "WriteIni", {"Section", "Key", "entry", "File"},
                           "Writes the value of a key; 1 on success, else 0."),
      method<&C::RemoveIniEntry>(4, "RemoveIniEntry", {"Section", "Key", "File"},
                                 "Removes a key; always 0."),
      method<&C::WritePrivateWindowinIni>(
          5, "WritePrivateWindowinIni", {"frmForm", "Section", "IniFile"},
          "Keeps the placement of a form in per cent of the screen."),
      method<&C::WriteWindowInIni>(6, "WriteWindowInIni", {"frmForm", "IniFile"},
                                   "Keeps the placement of a form in the section \"window\"."),
  };
}

}  // namespace

const frame::ClassTable& clsIni_table() {
  static const frame::ClassTable table = frame::table_of<clsIni>({
      .name = "clsIni",
      .class_id = {0x141AA2DF, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x141AA2DE, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .version = {1, 0},
      .help = "Values of INI files",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
