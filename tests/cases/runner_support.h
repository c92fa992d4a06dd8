// What the tests of the case runner share.
//
// The runner must never be the reason why a case passes: each test gives it one case that is
// malformed, or differs from what the library does in one thing, followed by a good case. The first
// must be reported, with what is wrong, and the run must go on to the second.
#pragma once

#include <string>

#include "runner/json_text.h"
#include "runner/library.h"

namespace kw::cases {

struct Report {
  int status = 0;
  std::string text;
  std::string last_line;
};

// What the runner says about a file, or about a file of this content.
Report report_on(const std::string& path, const std::string& filter = "",
                 Route route = Route::late_bound);
Report report_on_text(const std::string& content, const std::string& filter = "",
                      Route route = Route::late_bound);
// The report on a run that must call every method.
std::string report_on_every_method(const std::string& content);

// Braces around one JSON value are a list of it, or the value itself, as the compiler likes.
template <class... Values>
Json list(const Values&... values) {
  Json result = Json::array();
  (result.push_back(Json(values)), ...);
  return result;
}

// A text as an argument.
Json text(const std::string& value, bool reference = false);

// Takes the first line from a text. Nothing is wrong with it.
Json good_case();
// The good case with one value changed, and "under test" for its id.
Json changed(const std::string& pointer, const Json& value);

void expect_passed(const Json& one);
// The report must hold `reason`.
void expect_failed_line(const std::string& line, const std::string& reason);
// `reason` is the beginning of what is said about the case.
void expect_failed(const Json& one, const std::string& reason);
void expect_malformed(const Json& one, const std::string& reason);

}  // namespace kw::cases
