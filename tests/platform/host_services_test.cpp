// The services that a host supplies, with a host and without one.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "kwutils/host.h"
#include "platform/message_box.h"
#include "platform/screen.h"

namespace kw::platform {
namespace {

class HostServices : public ::testing::Test {
 protected:
  ~HostServices() override { set_host(HostFunctions()); }

  // The answer, and what came to standard error.
  static std::pair<MessageAnswer, std::string> shown(std::u16string_view text,
                                                     MessageButtons buttons) {
    ::testing::internal::CaptureStderr();
    const MessageAnswer answer = show_message(text, buttons);
    return {answer, ::testing::internal::GetCapturedStderr()};
  }
};

TEST_F(HostServices, WithoutAHostAMessageGoesToStandardErrorAndIsTakenNoteOf) {
  const auto [answer, text] = shown(u"Caf\u00E9 \u20AC", MessageButtons::ok);
  EXPECT_EQ(answer, MessageAnswer::ok);
  EXPECT_EQ(text, "Caf\xC3\xA9 \xE2\x82\xAC\n");
}

TEST_F(HostServices, WithoutAHostAChoiceIsAnsweredWithAbort) {
  const auto [answer, text] = shown(u"Again?", MessageButtons::abort_retry_ignore);
  EXPECT_EQ(answer, MessageAnswer::abort);
  EXPECT_EQ(text, "Again?\n");
}

TEST_F(HostServices, TheHostShowsMessagesAndAnswersThem) {
  struct Seen {
    std::u16string text;
    MessageButtons buttons = MessageButtons::ok;
  } seen;
  HostFunctions host;
  host.context = &seen;
  host.message_box = [](void* context, BSTR text, MessageButtons buttons) KW_STDCALL {
    *static_cast<Seen*>(context) = {std::u16string(text, SysStringLen(text)), buttons};
    return MessageAnswer::ignore;
  };
  set_host(host);
  const auto [answer, text] = shown(u"a\u20AC", MessageButtons::abort_retry_ignore);
  EXPECT_EQ(answer, MessageAnswer::ignore);
  EXPECT_EQ(text, "");
  EXPECT_EQ(seen.text, u"a\u20AC");
  EXPECT_EQ(seen.buttons, MessageButtons::abort_retry_ignore);
}

TEST_F(HostServices, WithoutAHostTheScreenHasNoSize) {
  EXPECT_EQ(screen_size().width, 0.0f);
  EXPECT_EQ(screen_size().height, 0.0f);
}

TEST_F(HostServices, TheHostTellsTheSizeOfTheScreen) {
  HostFunctions host;
  host.screen_size = [](void*, float* width, float* height) KW_STDCALL {
    *width = 15360;
    *height = 11520;
  };
  set_host(host);
  EXPECT_EQ(screen_size().width, 15360.0f);
  EXPECT_EQ(screen_size().height, 11520.0f);
}

}  // namespace
}  // namespace kw::platform
