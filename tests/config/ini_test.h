// What the tests of clsIni share: a folder of their own as current directory, and a host that
// writes messages down and has a screen.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "kwutils/clsIni.h"
#include "kwutils/host.h"
#include "kwutils/string.h"
#include "platform/temporary_folder.h"

namespace kw::testing {

class IniTest : public ::testing::Test {
 protected:
  IniTest() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder_.path());
    HostFunctions host;
    host.context = this;
    host.message_box = [](void* context, BSTR text, MessageButtons buttons) KW_STDCALL {
      auto& test = *static_cast<IniTest*>(context);
      test.messages_.emplace_back(text, SysStringLen(text));
      EXPECT_EQ(buttons, MessageButtons::ok);
      return MessageAnswer::ok;
    };
    host.screen_size = [](void* context, float* width, float* height) KW_STDCALL {
      *width = static_cast<IniTest*>(context)->screen_width_;
      *height = static_cast<IniTest*>(context)->screen_height_;
    };
    host.windows_directory = [](void* context) KW_STDCALL {
      return String(static_cast<IniTest*>(context)->folder_.name("windows")).release();
    };
    set_host(host);
  }
  ~IniTest() override {
    set_host(HostFunctions());
    std::filesystem::current_path(before_);
  }

  using Messages = std::vector<std::u16string>;

  TemporaryFolder folder_;
  Messages messages_;
  float screen_width_ = 14400;
  float screen_height_ = 10800;
  clsIni ini_;

 private:
  std::filesystem::path before_;
};

}  // namespace kw::testing
