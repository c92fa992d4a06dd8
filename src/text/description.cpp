#include "text/description.h"

#include "frame/method.h"
#include "kwutils/clsStringUtil.h"

namespace kw {
namespace {

using frame::method;
using C = clsStringUtil;

std::vector<frame::Method> methods() {
  return {
      method<&C::RemoveSpaces>(0, "RemoveSpaces", {"line"}, "A text without its blanks."),
      method<&C::ReplaceAllOccurs>(1, "ReplaceAllOccurs", {"toSearch", "toReplace", "replaceBy"},
                                   "Replaces a text wherever it occurs, until none is left."),
      method<&C::OutStr>(2, "OutStr", {"beingSearched", "sought"},
                         "Where the last occurrence of a text ends."),
      method<&C::InvertString>(3, "InvertString", {"s"}, "A text in reverse order."),
      method<&C::StrNoNull>(4, "StrNoNull", {"strInput"}, "A text up to its first NUL character."),
      method<&C::ReplaceTabCharacterswithBlank>(5, "ReplaceTabCharacterswithBlank", {"strng"},
                                                "A text with a blank for each tab."),
      method<&C::NumStr>(6, "NumStr", {"Value"}, "A number as text, with a blank before it."),
  };
}

}  // namespace

const frame::ClassTable& clsStringUtil_table() {
  static const frame::ClassTable table = frame::table_of<clsStringUtil>({
      .name = "clsStringUtil",
      .class_id = {0x141AA2E6, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x141AA2E5, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .version = {1, 0},
      .help = "Small transformations of text",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
