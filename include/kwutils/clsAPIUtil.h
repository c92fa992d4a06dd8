// clsAPIUtil: what the system knows about the user.
#pragma once

#include "kwutils/string.h"

namespace kw {

//   kw::clsAPIUtil api;
//   kw::clsStringUtil().StrNoNull(api.NTDomainUserName());  // u"JDOE" for the user jdoe
class clsAPIUtil {
 public:
  // The log-in name of the user who runs the process, in upper case, followed by NUL characters:
  // 254 characters in all. Callers count on the NULs and cut at the first one. Only NULs when the
  // name cannot be told, or is longer than 254 characters. Blanks that begin the name are taken off
  // and make the result shorter. Raises no error but 7 (out of memory).
  String NTDomainUserName() const;
};

}  // namespace kw
