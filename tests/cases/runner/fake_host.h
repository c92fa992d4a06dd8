// The host that a case describes: its drives, screen, answers to messages.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "json_text.h"
#include "kwutils/host.h"

namespace kw::cases {

struct ShownMessage {
  MessageButtons buttons;
  std::u16string text;
};

// "OK" or "AbortRetryIgnore".
std::string buttons_name(MessageButtons buttons);

class FakeHost {
 public:
  // `folder` takes the files of the operating system's own directory. `watches_drive`: there are
  // drives to be changed also where `env` does not name any. Throws Malformed for a value that
  // makes no sense.
  FakeHost(const Json& env, const std::filesystem::path& folder, bool watches_drive);
  FakeHost(const FakeHost&) = delete;
  FakeHost& operator=(const FakeHost&) = delete;

  const HostFunctions& functions() const { return functions_; }
  const std::vector<ShownMessage>& messages() const { return messages_; }
  std::u16string drive() const { return {drive_}; }

 private:
  void take_answers(const Json& env);
  void take_screen(const Json& size);
  void take_windows_directory(const Json& files, const std::filesystem::path& folder);
  void take_module(const Json& env);
  void take_user(const Json& name);
  void take_drives(const Json& env);
  MessageAnswer show(std::u16string_view text, MessageButtons buttons);

  HostFunctions functions_;
  std::vector<ShownMessage> messages_;
  std::vector<MessageAnswer> answers_;
  std::size_t next_answer_ = 0;
  float width_ = 0, height_ = 0;
  char16_t drive_ = u'C';
  std::map<char16_t, std::u16string> directories_;
  std::u16string failing_;
  std::u16string module_directory_, module_name_, windows_directory_, user_;
  bool user_known_ = false;
};

}  // namespace kw::cases
