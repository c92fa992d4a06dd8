// kw::clsIni: single values of INI files, read with a check of their type or written, and the
// placement of a window kept in such a file.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw {

// INI files are those of the operating system's profile functions. All text crosses them in the
// 8-bit code page: a character that the page lacks becomes "?", and NUL ends a text. Case does not
// matter in the names of sections, keys and files.
//
// A file name without "\" and ":" means the current directory; for GetInt alone, a name without a
// path means the system's own directory.
//
// On Linux a name may be native, too ("/home/a/plant.ini", "conf/plant.ini"), and is then taken as
// any program takes it; the system's own directory is /etc, or what the host says. In the last part
// of a name case does not matter, and a file of exactly that name comes first. A name that holds
// "*" or "?" names no file. INI files of a name that does not exist are made by writing, folders
// are not.
//
//   kw::clsIni ini;
//   ini.WriteIni(u"Pump", u"Flow", u"12.5", u"plant.ini");  // 1
//   kw::Variant flow = ini.GetIniAndCheck(u"Pump", u"Flow", u"Double", u"plant.ini");
//   flow.to_double();  // 12.5
//
// No method changes an argument.
class clsIni {
 public:
  // The value of a key, at most its first 1023 characters. Where the file, the section, the key or
  // its value is missing, or cannot be read, the default; the profile functions drop blanks at the
  // end of a default and a pair of quotes around it. Raises no error.
  //
  //   ini.GetIni(u"Pump", u"Flow", u"0", u"plant.ini");  // u"12.5"
  //   ini.GetIni(u"Pump", u"Head", u"0", u"plant.ini");  // u"0"
  String GetIni(std::u16string_view Section, std::u16string_view Key, std::u16string_view default_,
                std::u16string_view File) const;

  // The value of a key as `keyType` in any case: STRING, BOOLEAN or BOOL, INTEGER (16 bits), LONG
  // (32 bits), SINGLE, DOUBLE. A boolean is true for what begins with T or Y, false for what begins
  // with F or N, and by whether a number is 0. Halves are rounded to the even neighbour; error 6
  // (overflow) for a number too large for its type.
  //
  // Empty when the file does not exist. A missing key gives `vntDefaultValue` unchanged, of
  // whatever type. Without a default, and for a value or a type that does not fit, the user sees a
  // message, and the result is empty; but a STRING is then "__NO_VALUE__", and a BOOLEAN that is
  // neither true nor false is "NOTHING FOUND".
  //
  //   ini.GetIniAndCheck(u"Pump", u"Flow", u"long", u"plant.ini").to_int32();          // 12
  //   ini.GetIniAndCheck(u"Pump", u"Head", u"long", u"plant.ini", u"none").text();     // u"none"
  //   ini.GetIniAndCheck(u"Pump", u"Flow", u"long", u"missing.ini", u"x").is_empty();  // true
  Variant GetIniAndCheck(const String& sectionName, const String& keyName, const String& keyType,
                         const String& iniFileName,
                         const Variant& vntDefaultValue = Variant::missing()) const;

  // The 16-bit number that the value begins with ("12abc" is 12); the default where that is 0 or
  // nothing is stored. Error 6 (overflow) when it is larger than 16 bits.
  //
  //   ini.GetInt(u"Pump", u"Flow", 7, u".\\plant.ini").to_int16();  // 12
  //   ini.GetInt(u"Pump", u"Head", 7, u".\\plant.ini").to_int16();  // 7
  Variant GetInt(const String& Section, const String& Key, const std::int16_t& default_,
                 const String& File) const;

  // Writes a value, making file, section and key where they are missing; 1, or 0 on failure.
  // Raises no error.
  std::int16_t WriteIni(std::u16string_view Section, std::u16string_view Key,
                        std::u16string_view entry, std::u16string_view File) const;

  // Removes a key. Callers count on 0, whatever came of it. Raises no error.
  //
  //   ini.RemoveIniEntry(u"Pump", u"Flow", u"plant.ini");  // 0
  //   ini.GetIni(u"Pump", u"Flow", u"-", u"plant.ini");    // u"-"
  std::int16_t RemoveIniEntry(std::u16string_view Section, std::u16string_view Key,
                              std::u16string_view File) const;

  // Writes "Left", "Top", "Width" and "Height" of a form in per cent of the screen, and "State". A
  // maximised form is written as a normal one that fills the screen, of a minimised one nothing is
  // written. The form's properties of these names are read, and "WindowState". Error 438 for a form
  // without one of them, 13 for what is no object, 91 for no object, 11 (division by zero) for a
  // screen without size, 6 for a number that is too large; what has been written by then stays.
  // Failures to write are not raised.
  //
  //   ini.WritePrivateWindowinIni(form, u"main form", u"plant.ini");
  //   ini.GetIni(u"main form", u"Left", u"", u"plant.ini");  // u"25": a quarter of the screen
  void WritePrivateWindowinIni(const Variant& frmForm, const String& Section,
                               const String& IniFile) const;

  // The same, in the section "window".
  void WriteWindowInIni(const Variant& frmForm, const String& IniFile) const;

 private:
  static bool IniFileExists(const String& name);
};

}  // namespace kw
