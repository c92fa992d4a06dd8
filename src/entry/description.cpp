#include "entry/description.h"

#include "frame/method.h"
#include "kwutils/clsDataEdtUtils.h"

namespace kw {
namespace {

using frame::method;
using C = clsDataEdtUtils;

std::vector<frame::Method> methods() {
  return {
      method<&C::CheckInteger>(0, "CheckInteger",
                               {"KeyAscii", "Positive", "tmp", "MaxTextLength", "SelText"},
                               "Rejects a typed character that is no part of a whole number."),
      method<&C::CheckReal>(1, "CheckReal",
                            {"KeyAscii", "Positive", "tmp", "MaxTextLength", "SelText"},
                            "Rejects a typed character that is no part of a number."),
      method<&C::CheckRealChange>(2, "CheckRealChange", {"tmp"},
                                  "A number's text with its minus in front."),
      method<&C::FocusMe>(3, "FocusMe", {"ctlName"}, "Selects the whole text of a text box."),
      method<&C::CheckRez>(4, "CheckRez", {"pixelWidth", "pixelHeight"},
                           "Whether the screen has a size in pixels."),
      method<&C::Dither>(5, "Dither", {"vForm"}, "Paints a form from blue to black."),
      method<&C::IncreDecreInteger>(6, "IncreDecreInteger", {"ctlName", "KeyCode", "Shift"},
                                    "Steps the number in a text box up or down."),
      method<&C::ValiText>(7, "ValiText", {"KeyIn", "ValidateString", "Editable"},
                           "Rejects a typed character that is not in a set."),
      method<&C::OptionTrueIs>(8, "OptionTrueIs", {"OptionArrayName"},
                               "The index of the control of a group that is set."),
  };
}

}  // namespace

const frame::ClassTable& clsDataEdtUtils_table() {
  static const frame::ClassTable table = frame::table_of<clsDataEdtUtils>({
      .name = "clsDataEdtUtils",
      .class_id = {0x141AA2E8, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x141AA2E7, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .version = {1, 0},
      .help = "What the fields of a data-entry form need",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
