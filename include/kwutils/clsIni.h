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
//   kw::clsIni ini;
//   ini.WriteIni(u"Pump", u"Flow", u"12.5", u"plant.ini");
//   kw::Variant flow = ini.GetIniAndCheck(u"Pump", u"Flow", u"Double", u"plant.ini");
class clsIni {
 public:
  // The value of a key, at most its first 1023 characters. Where the file, the section, the key or
  // its value is missing, the default; the profile functions drop blanks at the end of a default
  // and a pair of quotes around it.
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
  Variant GetIniAndCheck(const String& sectionName, const String& keyName, const String& keyType,
                         const String& iniFileName,
                         const Variant& vntDefaultValue = Variant::missing()) const;

  // The 16-bit number that the value begins with ("12abc" is 12); the default where that is 0 or
  // nothing is stored. Error 6 (overflow) when it is larger than 16 bits.
  Variant GetInt(const String& Section, const String& Key, const std::int16_t& default_,
                 const String& File) const;

  // Writes a value, making file, section and key where they are missing; 1, or 0 on failure.
  std::int16_t WriteIni(std::u16string_view Section, std::u16string_view Key,
                        std::u16string_view entry, std::u16string_view File) const;

  // Removes a key. Callers count on 0, whatever came of it.
  std::int16_t RemoveIniEntry(std::u16string_view Section, std::u16string_view Key,
                              std::u16string_view File) const;

  // Writes "Left", "Top", "Width" and "Height" of a form in per cent of the screen, and "State". A
  // maximised form is written as a normal one that fills the screen, of a minimised one nothing is
  // written. The form's properties of these names are read, and "WindowState". Error 438 for a form
  // without one of them, 11 (division by zero) for a screen without size, 6 for a number that is
  // too large; what has been written by then stays.
  void WritePrivateWindowinIni(const Variant& frmForm, const String& Section,
                               const String& IniFile) const;

  // The same, in the section "window".
  void WriteWindowInIni(const Variant& frmForm, const String& IniFile) const;

 private:
  static bool IniFileExists(const String& name);
};

}  // namespace kw
