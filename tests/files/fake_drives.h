// A host with drives of its own, for tests of paths: it says where each drive's current directory
// is, lets drives fail, writes messages down and answers them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/case_map.h"
#include "kwutils/error.h"
#include "kwutils/host.h"
#include "kwutils/string.h"

namespace kw::testing {

class FakeDrives {
 public:
  FakeDrives() {
    HostFunctions host;
    host.context = this;
    host.message_box = [](void* context, BSTR text, MessageButtons buttons) KW_STDCALL {
      return self(context).answer({text, SysStringLen(text)}, buttons);
    };
    host.current_drive = [](void* context) KW_STDCALL { return self(context).drive; };
    host.change_drive = [](void* context, char16_t letter)
                            KW_STDCALL { return self(context).change(letter); };
    host.current_directory = [](void* context) KW_STDCALL {
      return String(self(context).directories[self(context).drive]).release();
    };
    host.module_directory = [](void* context) KW_STDCALL {
      return String(self(context).module_directory).release();
    };
    host.module_name = [](void* context)
                           KW_STDCALL { return String(self(context).module_name).release(); };
    set_host(host);
  }
  FakeDrives(const FakeDrives&) = delete;
  FakeDrives& operator=(const FakeDrives&) = delete;
  ~FakeDrives() { set_host(HostFunctions()); }

  char16_t drive = u'C';
  std::map<char16_t, std::u16string> directories = {{u'C', u"C:\\work"}, {u'D', u"D:\\old\\data"}};
  std::set<char16_t> failing;  // each use of such a drive fails
  int failures_left = -1;      // so often; -1: always
  std::u16string module_directory = u"C:\\Program\\kw";
  std::u16string module_name = u"kwutils";

  std::vector<std::u16string> messages;
  std::vector<MessageAnswer> answers;  // to the messages with a choice, in order

 private:
  static FakeDrives& self(void* context) { return *static_cast<FakeDrives*>(context); }

  MessageAnswer answer(std::u16string text, MessageButtons buttons) {
    messages.push_back(std::move(text));
    if (buttons == MessageButtons::ok) return MessageAnswer::ok;
    if (answers.empty()) return MessageAnswer::abort;
    const MessageAnswer first = answers.front();
    answers.erase(answers.begin());
    return first;
  }
  std::int32_t change(char16_t letter) {
    if (failing.contains(to_upper(letter)) && failures_left != 0) {
      if (failures_left > 0) --failures_left;
      return static_cast<std::int32_t>(ErrorNumber::device_unavailable);
    }
    drive = to_upper(letter);
    return 0;
  }
};

}  // namespace kw::testing
