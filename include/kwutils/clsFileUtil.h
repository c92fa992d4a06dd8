// clsFileUtil: file names and paths.
#pragma once

#include <cstdint>
#include <string_view>

#include "kwutils/boolean.h"
#include "kwutils/file_open_modes.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"

namespace kw {

// Works on path text as Windows writes it ("C:\data\in.txt", "\\server\share"), on every system.
// Positions count from 1.
//
//   kw::clsFileUtil util;
//   const kw::Variant model(u"D:\\proj\\model.ini");
//   util.MakeAbsolute(u"data\\in.txt", model);              // u"D:\\proj\\data\\in.txt"
//   util.UnMakeAbsolute(u"D:\\proj\\data\\in.txt", model);  // u"data\\in.txt"
class clsFileUtil {
 public:
  // Whether the file `FileName`, blanks around it ignored, can be opened for reading. False for a
  // directory, for "" and after any failure: raises no error.
  //
  //   util.FileNameExists(u"C:\\none.txt");  // false
  Boolean FileNameExists(const String& FileName) const;

  // `relPath` as an absolute path, without "\.\", "\\" and "\..\".
  //
  // "$PATH$" in it stands for the library's own folder, "$EXENAME$" for the name of the library's
  // file without its extension. A path without a drive is taken from `driveindicator`, the name of
  // a file, or of a folder with a "\" at its end, or from the current directory when that is left
  // out; one that begins with "\" takes only the drive from there. A path with a drive is taken
  // from that drive's current directory:
  //
  //   "data\in.txt"   with "C:\work" as current directory    "C:\work\data\in.txt"
  //   "\tmp\x"        with "C:\work" as current directory    "C:\tmp\x"
  //   "D:x.txt"       with "D:\old" as D's directory         "D:\old\x.txt"
  //
  // A network path ("\\server\share") gives "", and so does "". A ":" that is not on position 2
  // shows a message and gives "". Climbing above a drive's root shows a message and damages the
  // path ("C:\..\x" gives "C\x").
  //
  // An error in one of the steps (68: no such drive; 76: no such directory; 5: "\..\" at the very
  // beginning; 6: "\..\" beyond position 32767; 13: a `driveindicator` that is no text) is shown to
  // the user, who ends the call, with "" as result, repeats the step or goes on with the next one.
  // The current drive is changed for a moment.
  String MakeAbsolute(const String& relPath,
                      const Variant& driveindicator = Variant::missing()) const;

  // `relPath` in lower case, without its base folder wherever that occurs, without the drive where
  // that is the base's own, and without "\.\", "\\" and "\..\". The base is the folder of
  // `driveindicator`, with its last "\", or the current directory, without one:
  //
  //   "C:\Work\Data\X.txt"   with "C:\work\" as indicator           "data\x.txt"
  //   "C:\Work\Data\X.txt"   with "C:\Work" as current directory    "\data\x.txt"
  //   "D:\Other\y.txt"       with C as current drive                "d:\other\y.txt"
  //
  // Messages and errors as in MakeAbsolute, but only the first ":" is looked at. With a
  // `driveindicator` without "\" the base is empty, and the call never returns unless `relPath` is
  // "".
  //
  // Where `relPath` and the indicator both name a drive, the process is left on that of the
  // indicator, whichever it was on before: callers count on it.
  String UnMakeAbsolute(const String& relPath,
                        const Variant& driveindicator = Variant::missing()) const;

  // Cuts `FileName` into `path`, up to and including its last "\", `name`, up to the first "." of
  // the rest, and `ext`, what follows that ".". What is not there is "".
  //
  //   kw::String path, name, ext;
  //   util.SplitFileName(u"C:\\a\\b.tar.gz", path, name, ext);
  //   // path is u"C:\\a\\"; name is u"b"; ext is u"tar.gz"
  void SplitFileName(std::u16string_view FileName, String& path, String& name, String& ext) const;

  // The folder of `TheFile`, as a text, without its last "\": "C:\a" for "C:\a\b.txt". A root keeps
  // it ("C:\" for "C:\b.txt", "\" for "\b.txt"), and so does any name whose last "\" is its third
  // character. "" for a name without "\".
  // The caller's variable is left without the blanks around it. Raises no error.
  //
  //   kw::String file = u" C:\\a\\b.txt ";
  //   util.StripFileFrom(file).text();  // u"C:\\a"; file is u"C:\\a\\b.txt"
  Variant StripFileFrom(String& TheFile) const;

  // What follows the last "\" of `TheFile`, without blanks around it; all of it when there is none.
  // "" for a name of more than 32767 characters and for what has no text form. Raises no error.
  //
  //   util.StripPathFrom(u"C:\\a\\b.txt");  // u"b.txt"
  String StripPathFrom(const Variant& TheFile) const;

  // Opens nothing and answers NO_FILE, whatever the name and the mode. Raises no error.
  //
  //   util.FileOpener(u"C:\\a\\b.txt", kw::READ_FILE);  // kw::NO_FILE
  std::int32_t FileOpener(const String& FileName, const std::int32_t& Mode) const;
};

}  // namespace kw
