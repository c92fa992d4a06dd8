#include "platform/message_box.h"

#include <gtest/gtest.h>

namespace kw::platform {
namespace {

// These tests run without a display: the system answers at once that it showed nothing.
TEST(MessageBox, WithoutADisplayAChoiceIsAnsweredWithAbort) {
  EXPECT_EQ(show_message(u"Again?", MessageButtons::abort_retry_ignore), MessageAnswer::abort);
}

TEST(MessageBox, WithoutADisplayAMessageIsTakenNoteOf) {
  EXPECT_EQ(show_message(u"Done.", MessageButtons::ok), MessageAnswer::ok);
}

}  // namespace
}  // namespace kw::platform
