#include "system/description.h"

#include "frame/method.h"
#include "kwutils/clsAPIUtil.h"

namespace kw {
namespace {

using C = clsAPIUtil;

std::vector<frame::Method> methods() {
  return {
      frame::method<&C::NTDomainUserName>(
          0, "NTDomainUserName", {},
          "Gets the User / Login Name on Windows NT / 95 / 98 platform."),
  };
}

}  // namespace

const frame::ClassTable& clsAPIUtil_table() {
  static const frame::ClassTable table = frame::table_of<clsAPIUtil>({
      .name = "clsAPIUtil",
      .class_id = {0x141AA2EA, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .interface_id =
          {0x141AA2E9, 0x593E, 0x11D2, {0x80, 0x5F, 0x00, 0xA0, 0x24, 0x46, 0x00, 0xDF}},
      .version = {1, 0},
      .help = "What the system knows about the user",
      .methods = methods(),
  });
  return table;
}

}  // namespace kw
