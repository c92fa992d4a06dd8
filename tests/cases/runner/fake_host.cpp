#include "fake_host.h"

#include "base/unicode.h"
#include "fields.h"
#include "kwutils/automation.h"
#include "typed_value.h"
#include "work_directory.h"

namespace kw::cases {
namespace {

BSTR given_away(const std::u16string& text) {
  return SysAllocStringLen(text.data(), static_cast<std::uint32_t>(text.size()));
}

char16_t upper(char16_t letter) {
  return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - 32) : letter;
}

char16_t drive_letter(const Json& text) {
  const std::u16string letter = text_of(text, "drive");
  const bool good = letter.size() == 1 && upper(letter[0]) >= u'A' && upper(letter[0]) <= u'Z';
  if (!good) throw Malformed("drive: " + shown(letter) + " is no letter");
  return letter[0];
}

MessageAnswer answer_of(const Json& word) {
  if (word == "abort") return MessageAnswer::abort;
  if (word == "retry") return MessageAnswer::retry;
  if (word == "ignore") return MessageAnswer::ignore;
  throw Malformed("answers: neither abort, retry nor ignore: " + word.dump());
}

}  // namespace

std::string buttons_name(MessageButtons buttons) {
  return buttons == MessageButtons::ok ? "OK" : "AbortRetryIgnore";
}

FakeHost::FakeHost(const Json& env, const std::filesystem::path& folder, bool watches_drive) {
  functions_.context = this;
  take_answers(env);
  if (env.contains("screen")) take_screen(env["screen"]);
  if (env.contains("windir")) take_windows_directory(object_field(env, "windir"), folder);
  take_module(env);
  if (env.contains("user")) take_user(env["user"]);
  if (watches_drive || env.contains("drive") || env.contains("dirs") || env.contains("failing"))
    take_drives(env);
}

void FakeHost::take_answers(const Json& env) {
  for (const Json& word : list_field(env, "answers")) answers_.push_back(answer_of(word));
  functions_.message_box = [](void* host, BSTR text, MessageButtons buttons) KW_STDCALL {
    return static_cast<FakeHost*>(host)->show({text != nullptr ? text : u"", SysStringLen(text)},
                                              buttons);
  };
}

void FakeHost::take_screen(const Json& size) {
  if (!size.is_array() || size.size() != 2) throw Malformed("screen: no width and height");
  width_ = element_of<float>(size[0]);
  height_ = element_of<float>(size[1]);
  functions_.screen_size = [](void* host, float* width, float* height) KW_STDCALL {
    *width = static_cast<FakeHost*>(host)->width_;
    *height = static_cast<FakeHost*>(host)->height_;
  };
}

void FakeHost::take_windows_directory(const Json& files, const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  write_files(folder, files);
  windows_directory_ = from_utf8(folder.string());
  functions_.windows_directory = [](void* host) KW_STDCALL {
    return given_away(static_cast<FakeHost*>(host)->windows_directory_);
  };
}

void FakeHost::take_module(const Json& env) {
  if (env.contains("libdir")) {
    module_directory_ = text_of(env["libdir"], "libdir");
    functions_.module_directory = [](void* host) KW_STDCALL {
      return given_away(static_cast<FakeHost*>(host)->module_directory_);
    };
  }
  if (env.contains("libname")) {
    module_name_ = text_of(env["libname"], "libname");
    functions_.module_name = [](void* host) KW_STDCALL {
      return given_away(static_cast<FakeHost*>(host)->module_name_);
    };
  }
}

void FakeHost::take_user(const Json& name) {
  user_known_ = !name.is_null();
  if (user_known_) user_ = text_of(name, "user");
  functions_.user_name = [](void* host) KW_STDCALL -> BSTR {
    const auto* given = static_cast<FakeHost*>(host);
    return given->user_known_ ? given_away(given->user_) : nullptr;
  };
}

void FakeHost::take_drives(const Json& env) {
  if (env.contains("drive")) drive_ = drive_letter(env["drive"]);
  for (const auto& [letter, directory] : object_field(env, "dirs").items())
    directories_[upper(drive_letter(letter))] = text_of(directory, "dirs");
  for (const Json& letter : list_field(env, "failing")) failing_ += upper(drive_letter(letter));
  functions_.current_drive = [](void* host)
                                 KW_STDCALL { return static_cast<FakeHost*>(host)->drive_; };
  functions_.change_drive = [](void* host, char16_t letter) KW_STDCALL -> std::int32_t {
    auto* given = static_cast<FakeHost*>(host);
    if (given->failing_.find(upper(letter)) != std::u16string::npos) return 68;
    given->drive_ = upper(letter);
    return 0;
  };
  functions_.current_directory = [](void* host) KW_STDCALL {
    const auto* given = static_cast<FakeHost*>(host);
    const auto found = given->directories_.find(upper(given->drive_));
    if (found != given->directories_.end()) return given_away(found->second);
    return given_away(std::u16string(1, given->drive_) + u":\\");
  };
}

MessageAnswer FakeHost::show(std::u16string_view text, MessageButtons buttons) {
  messages_.push_back({buttons, std::u16string(text)});
  if (buttons == MessageButtons::ok) return MessageAnswer::ok;
  return next_answer_ < answers_.size() ? answers_[next_answer_++] : MessageAnswer::abort;
}

}  // namespace kw::cases
