// Files and lines of cases, as the runner reads them.
#include <gtest/gtest.h>

#include "runner_support.h"

namespace kw::cases {
namespace {

TEST(RunnerLines, PassesAGoodCase) { expect_passed(good_case()); }

TEST(RunnerLines, CountsALineThatIsNoJsonOnce) { expect_failed_line("{\"id\":", ":1: "); }
TEST(RunnerLines, CountsALineThatIsNoObjectOnce) {
  expect_failed_line("[1, 2]", ":1: no JSON object");
}
TEST(RunnerLines, CountsANumberAloneOnce) { expect_failed_line("5", ":1: no JSON object"); }
TEST(RunnerLines, RefusesInvalidUtf8) { expect_failed_line("{\"id\": \"\xFF\"}", ":1: "); }
TEST(RunnerLines, RefusesEndlessNesting) {
  expect_failed_line("{\"expect\": " + std::string(100000, '['), "nested too deeply");
}
TEST(RunnerLines, RefusesAFieldGivenTwice) {
  expect_failed_line(R"({"id": "x", "id": "y"})", "the name \"id\" occurs twice");
}
TEST(RunnerLines, RefusesAnEscapeWithoutDigits) {
  expect_failed_line(R"({"id": "\uZZZZ"})", ":1: ");
}
TEST(RunnerLines, RefusesACutEscape) { expect_failed_line(R"({"id": "\ud8)", ":1: "); }
TEST(RunnerLines, NamesTheLineOfACaseWithoutId) {
  Json one = changed("/expect/result", "z");
  one.erase("id");
  expect_failed_line(one.dump(), ":1\n  result: expected \"z\", got \"a\"");
}
TEST(RunnerLines, RefusesAnIdThatIsNoText) {
  expect_failed_line(
      [] {
        Json one = good_case();
        one["id"] = 5;
        return one.dump();
      }(),
      "id: no text");
}
TEST(RunnerLines, SkipsBlankLines) {
  EXPECT_EQ(report_on_text("\n \t\r\n" + good_case().dump() + "\r\n").text,
            "1 passed, 0 failed, 0 skipped\n");
}
TEST(RunnerLines, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(report_on_text(good_case().dump()).text, "1 passed, 0 failed, 0 skipped\n");
}
TEST(RunnerLines, RunsOnlyWhatTheFilterFinds) {
  const std::string other = changed("/tags", list("other")).dump();
  EXPECT_EQ(report_on_text(good_case().dump() + "\n" + other + "\n", "other").last_line,
            "1 passed, 0 failed, 0 skipped\n");
}
TEST(RunnerLines, FailsForAMissingFile) {
  const Report report = report_on("no such file.jsonl");
  EXPECT_EQ(report.text,
            "FAILED no such file.jsonl: cannot be read\n0 passed, 1 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 1);
}
TEST(RunnerLines, FailsForADirectory) {
  const Report report = report_on(".");
  EXPECT_EQ(report.text, "FAILED .: cannot be read\n0 passed, 1 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 1);
}

}  // namespace
}  // namespace kw::cases
