// The host that a case describes: its drives, screen, answers to messages.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "json_text.h"
#include "kwutils/host.h"

namespace kw::cases {

class FakeHost {
 public:
  // `folder` takes the files of the operating system's own directory.
  FakeHost(const Json& env, const std::filesystem::path& folder);
  FakeHost(const FakeHost&) = delete;
  FakeHost& operator=(const FakeHost&) = delete;

  const HostFunctions& functions() const { return functions_; }
  const std::vector<Json>& messages() const { return messages_; }
  std::u16string drive() const { return {drive_}; }

 private:
  void take_drives(const Json& env);
  MessageAnswer show(std::u16string_view text, MessageButtons buttons);

  HostFunctions functions_;
  std::vector<Json> messages_;
  std::vector<std::string> answers_;
  std::size_t next_answer_ = 0;
  float width_ = 0, height_ = 0;
  char16_t drive_ = u'C';
  std::map<char16_t, std::u16string> directories_;
  std::u16string failing_;
  std::u16string module_directory_, module_name_, windows_directory_, user_;
  bool user_known_ = false;
};

// "" when the messages shown are those expected (null: none). Of what the operating system words
// itself only the beginning is compared.
std::string messages_difference(const std::vector<Json>& got, const Json& expected);

}  // namespace kw::cases
