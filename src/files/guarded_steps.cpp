#include "files/guarded_steps.h"

#include <string>

#include "base/unicode.h"
#include "platform/message_box.h"

namespace kw::files {

bool GuardedSteps::is_to_be_repeated(std::string_view description) {
  std::u16string text = u"Error in ";
  text.append(method_).append(u":\r").append(from_utf8(description));
  const MessageAnswer answer = platform::show_message(text, MessageButtons::abort_retry_ignore);
  // Whatever is neither of the other two ends the method, so that a box that cannot be shown does
  // not repeat a step for ever.
  aborted_ = answer != MessageAnswer::retry && answer != MessageAnswer::ignore;
  return answer == MessageAnswer::retry;
}

}  // namespace kw::files
