#include "fake_host.h"

#include <fstream>

#include "base/unicode.h"
#include "kwutils/automation.h"

namespace kw::cases {
namespace {

BSTR given_away(const std::u16string& text) {
  return SysAllocStringLen(text.data(), static_cast<std::uint32_t>(text.size()));
}

char16_t upper(char16_t letter) {
  return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - 32) : letter;
}

// How much of a message is the library's own wording.
std::string own_part(const Json& message) {
  std::string text = message.at("text");
  const std::string marker = "occured in FileNameExists: ";
  const std::size_t found = text.find(marker);
  if (found != text.npos) return text.substr(0, found + marker.size());
  if (message.at("buttons") == "AbortRetryIgnore") return text.substr(0, text.find('\r') + 1);
  return text;
}

}  // namespace

FakeHost::FakeHost(const Json& env, const std::filesystem::path& folder) {
  functions_.context = this;
  functions_.message_box = [](void* host, BSTR text, MessageButtons buttons) KW_STDCALL {
    return static_cast<FakeHost*>(host)->show({text, SysStringLen(text)}, buttons);
  };
  if (env.contains("answers")) answers_ = env["answers"].get<std::vector<std::string>>();
  if (env.contains("screen")) {
    width_ = env["screen"][0].get<float>();
    height_ = env["screen"][1].get<float>();
    functions_.screen_size = [](void* host, float* width, float* height) KW_STDCALL {
      *width = static_cast<FakeHost*>(host)->width_;
      *height = static_cast<FakeHost*>(host)->height_;
    };
  }
  if (env.contains("windir")) {
    std::filesystem::create_directories(folder);
    for (const auto& [name, content] : env["windir"].items())
      std::ofstream(folder / name, std::ios::binary) << bytes(content);
    windows_directory_ = from_utf8(folder.string());
    functions_.windows_directory = [](void* host) KW_STDCALL {
      return given_away(static_cast<FakeHost*>(host)->windows_directory_);
    };
  }
  if (env.contains("libdir")) {
    module_directory_ = units(env["libdir"]);
    functions_.module_directory = [](void* host) KW_STDCALL {
      return given_away(static_cast<FakeHost*>(host)->module_directory_);
    };
  }
  if (env.contains("libname")) {
    module_name_ = units(env["libname"]);
    functions_.module_name = [](void* host) KW_STDCALL {
      return given_away(static_cast<FakeHost*>(host)->module_name_);
    };
  }
  if (env.contains("user")) {
    user_known_ = !env["user"].is_null();
    if (user_known_) user_ = units(env["user"]);
    functions_.user_name = [](void* host) KW_STDCALL -> BSTR {
      const auto* fake = static_cast<FakeHost*>(host);
      return fake->user_known_ ? given_away(fake->user_) : nullptr;
    };
  }
  take_drives(env);
}

void FakeHost::take_drives(const Json& env) {
  if (!env.contains("drive") && !env.contains("dirs") && !env.contains("failing")) return;
  if (env.contains("drive")) drive_ = units(env["drive"]).at(0);
  if (env.contains("dirs"))
    for (const auto& [letter, directory] : env["dirs"].items())
      directories_[upper(from_utf8(letter).at(0))] = units(directory);
  if (env.contains("failing"))
    for (const Json& letter : env["failing"]) failing_ += upper(units(letter).at(0));
  functions_.current_drive = [](void* host)
                                 KW_STDCALL { return static_cast<FakeHost*>(host)->drive_; };
  functions_.change_drive = [](void* host, char16_t letter) KW_STDCALL -> std::int32_t {
    auto* fake = static_cast<FakeHost*>(host);
    if (fake->failing_.find(upper(letter)) != std::u16string::npos) return 68;
    fake->drive_ = upper(letter);
    return 0;
  };
  functions_.current_directory = [](void* host) KW_STDCALL {
    const auto* fake = static_cast<FakeHost*>(host);
    const auto found = fake->directories_.find(upper(fake->drive_));
    if (found != fake->directories_.end()) return given_away(found->second);
    return given_away(std::u16string(1, fake->drive_) + u":\\");
  };
}

MessageAnswer FakeHost::show(std::u16string_view text, MessageButtons buttons) {
  const bool asks = buttons == MessageButtons::abort_retry_ignore;
  messages_.push_back({{"buttons", asks ? "AbortRetryIgnore" : "OK"}, {"text", to_utf8(text)}});
  if (!asks) return MessageAnswer::ok;
  const std::string answer = next_answer_ < answers_.size() ? answers_[next_answer_++] : "abort";
  if (answer == "retry") return MessageAnswer::retry;
  return answer == "ignore" ? MessageAnswer::ignore : MessageAnswer::abort;
}

std::string messages_difference(const std::vector<Json>& got, const Json& expected) {
  const std::size_t count = expected.is_null() ? 0 : expected.size();
  for (std::size_t i = 0; i < std::min(count, got.size()); ++i) {
    const bool same = got[i].at("buttons") == expected[i].at("buttons") &&
                      own_part(got[i]) == own_part(expected[i]);
    if (!same)
      return "message " + std::to_string(i + 1) + ": expected " + expected[i].dump() + ", got " +
             got[i].dump();
  }
  if (got.size() == count) return "";
  return "expected " + std::to_string(count) + " messages, got " + std::to_string(got.size()) +
         (got.size() > count ? ": " + got[count].dump() : "");
}

}  // namespace kw::cases
