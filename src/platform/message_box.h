// Messages to the user that wait for an answer.
#pragma once

#include <string_view>

#include "kwutils/host.h"

namespace kw::platform {

// Shows `text` through the host's function. Without one, Windows shows a modal box; elsewhere the
// text goes to standard error as a line in UTF-8, and the answer is OK or Abort. Abort is also the
// answer where a box with the choice cannot be shown.
MessageAnswer show_message(std::u16string_view text, MessageButtons buttons);

}  // namespace kw::platform
