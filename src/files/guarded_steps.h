// Steps of a method whose failures the user decides on.
#pragma once

#include <new>
#include <string_view>

#include "kwutils/error.h"

namespace kw::files {

// Performs steps one by one. A step that throws is shown to the user: Retry performs it again,
// Ignore goes on with the next one, Abort ends the method: later steps are then passed over.
class GuardedSteps {
 public:
  // `method` is named in the message.
  explicit GuardedSteps(std::u16string_view method) noexcept : method_(method) {}

  template <class Step>
  void run(Step&& step) {
    while (!aborted_ && !attempt(step)) {
    }
  }
  bool aborted() const noexcept { return aborted_; }

 private:
  // Whether the step is over and done with.
  template <class Step>
  bool attempt(Step& step) {
    try {
      step();
      return true;
    } catch (const Error& error) {
      return !is_to_be_repeated(error.text());
    } catch (const std::bad_alloc&) {
      return !is_to_be_repeated(standard_text(ErrorNumber::out_of_memory));
    }
  }
  bool is_to_be_repeated(std::string_view description);

  std::u16string_view method_;
  bool aborted_ = false;
};

}  // namespace kw::files
