#include "files/description.h"

#include "frame/method.h"
#include "kwutils/clsFileUtil.h"

namespace kw {
namespace {

using frame::method;
using frame::optional;
using C = clsFileUtil;

std::vector<frame::Method> methods() {
  return {
      method<&C::FileNameExists>(0, "FileNameExists", {"FileName"},
                                 "Whether a file can be opened for reading."),
      method<&C::MakeAbsolute>(1, "MakeAbsolute", {"relPath", optional("driveindicator")},
                               "A path with its drive and all of its folders."),
      method<&C::UnMakeAbsolute>(2, "UnMakeAbsolute", {"relPath", optional("driveindicator")},
                                 "A path without its base folder and drive."),
      method<&C::SplitFileName>(4, "SplitFileName", {"FileName", "path", "name", "ext"},
                                "Cuts a file name into folder, name and extension."),
      method<&C::StripFileFrom>(8, "StripFileFrom", {"TheFile"}, "The folder of a file name."),
      method<&C::StripPathFrom>(9, "StripPathFrom", {"TheFile"}, "A file name without its folder."),
      method<&C::FileOpener>(10, "FileOpener", {"FileName", "Mode"}, "Opens nothing; answers -1."),
  };
}

}  // namespace

const frame::ClassTable& clsFileUtil_table() {
  static const frame::ClassTable table = frame::table_of<clsFileUtil>({
      .name = "clsFileUtil",
      .class_id = {0x141AA2E1, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x141AA2E0, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .version = {1, 0},
      .help = "File names and paths",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
