// The two routes into the library, and the proof that a run has tried every method.
#include <gtest/gtest.h>

#include <sstream>

#include "runner/run_files.h"
#include "runner/slot_call.h"
#include "runner_support.h"

namespace kw::cases {
namespace {

TEST(RunnerRoutes, BothRunTheSameCase) {
  EXPECT_EQ(report_on_text(good_case().dump(), "", Route::slots).text,
            "1 passed, 0 failed, 0 skipped\n");
  expect_passed(good_case());
}

TEST(RunnerRoutes, ASlotsErrorIsComparedWithItsSourceAndDescription) {
  Json one = good_case();
  one["method"] = "ParseString";
  one["args"] = {text("a"), text(",", true), {{"t", "i4"}, {"v", 0}}};
  one["expect"] = {{"error",
                    {{"number", 5},
                     {"source", "kwUtils.clsParse"},
                     {"description", "Invalid procedure call or argument"}}}};
  EXPECT_EQ(report_on_text(one.dump(), "", Route::slots).status, 0);
  one["expect"]["error"]["source"] = "elsewhere";
  EXPECT_EQ(report_on_text(one.dump(), "", Route::slots).status, 1);
}

TEST(RunnerRoutes, ASlotTakesNoTextForAnArray) {
  Json one = good_case();
  one["method"] = "ParseFields";
  one["args"] = {text("a"), text(",", true), text("b", true)};
  one["expect"] = {{"error", {{"number", 13}}}};
  EXPECT_EQ(report_on_text(one.dump(), "", Route::slots).status, 0);
}

TEST(RunnerRoutes, AMethodThatNoCaseCallsFailsTheRun) {
  const std::string report = report_on_every_method(good_case().dump());
  EXPECT_NE(report.find("FAILED clsParse.ParseList is called by no case that passes\n"),
            std::string::npos);
  EXPECT_EQ(report.find("FAILED clsParse.ParseRecord"), std::string::npos);
  EXPECT_NE(report.find("\n1 of 105 methods called late-bound\n1 passed, 104 failed, 0 skipped\n"),
            std::string::npos);
}

}  // namespace
}  // namespace kw::cases
