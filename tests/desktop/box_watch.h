// Watches the message boxes that the program shows while it is busy showing them, and answers them.
#pragma once

#include <string>
#include <thread>
#include <vector>

#include "platform/windows/system.h"

namespace kw::testing {

// What was seen of a box.
struct SeenBox {
  std::u16string caption;
  std::u16string text;
  HWND owner;
  bool owner_takes_input;
};

class BoxWatch {
 public:
  // Answers one box after the other by pressing the button of that number (IDOK, IDRETRY ...).
  explicit BoxWatch(std::vector<int> answers);
  ~BoxWatch();
  BoxWatch(const BoxWatch&) = delete;
  BoxWatch& operator=(const BoxWatch&) = delete;

  // The boxes so far; to be asked after the call that shows them.
  const std::vector<SeenBox>& seen();

 private:
  void answer_all(const std::vector<int>& answers);

  std::vector<SeenBox> seen_;
  std::thread thread_;
};

}  // namespace kw::testing
