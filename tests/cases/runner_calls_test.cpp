// Setting the scene, calling, and comparing what a call answers and leaves behind.
#include <gtest/gtest.h>

#include "runner_support.h"

namespace kw::cases {
namespace {

TEST(RunnerCalls, RefusesToRepeatNever) {
  expect_malformed(changed("/repeat", 0), "repeat must be at least 1");
}
TEST(RunnerCalls, RefusesANegativeRepeat) {
  expect_malformed(changed("/repeat", -3), "repeat must be at least 1");
}
TEST(RunnerCalls, RefusesHalfARepeat) {
  expect_malformed(changed("/repeat", 1.5), "repeat: 1.5 is no whole number");
}
TEST(RunnerCalls, RefusesARepeatWithoutEnd) {
  expect_malformed(changed("/repeat", 2000000000), "repeat must be at most");
}
TEST(RunnerCalls, RefusesOneResultForARepeatedCall) {
  expect_malformed(changed("/repeat", 1), "the result of a repeated call is a list");
}
TEST(RunnerCalls, RefusesAListOfResultsForOneCall) {
  expect_malformed(changed("/expect/result", list("a")), "a list of results needs 'repeat'");
}
TEST(RunnerCalls, ComparesEveryRepeatedResult) {
  Json one = changed("/repeat", 2);
  one["expect"] = {{"result", {"a", "b"}}, {"args_after", list(text(""))}};
  expect_passed(one);
  one["expect"]["result"] = {"z", "b"};
  expect_failed(one, "result: call 1: expected \"z\", got \"a\"");
  one["expect"]["result"] = list("a");
  expect_failed(one, "result: expected 1 results, got 2");
}
TEST(RunnerCalls, NamesASetupCallThatFails) {
  expect_malformed(changed("/setup", Json::array({{{"method", "ParseNone"}}})),
                   "setup call ParseNone: error 438");
}
TEST(RunnerCalls, MakesSetupCallsOnTheSameObject) {
  expect_passed(changed(
      "/setup", Json::array({{{"method", "ParseRecord"}, {"args", list(text("q", true))}}})));
}
TEST(RunnerCalls, RefusesAnUnknownModeOfOpening) {
  Json one = changed("/files", {{"a.txt", "x"}});
  one["open"] = Json::array({{{"number", 1}, {"name", "a.txt"}, {"mode", "append"}}});
  expect_malformed(one, "open: unknown mode 'append'");
}
TEST(RunnerCalls, ClosesWhatItOpenedWhenALaterFileCannotBeOpened) {
  Json one = changed("/files", {{"a.txt", "x"}});
  one["open"] = Json::array({{{"number", 7}, {"name", "a.txt"}, {"mode", "input"}},
                             {{"number", 8}, {"name", "none.txt"}, {"mode", "input"}}});
  expect_malformed(one, "File not found");
  one["open"].erase(1);
  expect_passed(one);
}

TEST(RunnerCalls, ReportsExpectedAndGot) {
  expect_failed(changed("/expect/result", "\xC3\xA9"), "result: expected \"\\u00e9\", got \"a\"");
}
TEST(RunnerCalls, TakesNullForNoResult) {
  expect_failed(changed("/expect/result", nullptr), "result: expected null, got \"a\"");
}
TEST(RunnerCalls, ComparesNoResultWhenNoneIsGiven) {
  Json one = good_case();
  one["expect"].erase("result");
  expect_passed(one);
}
TEST(RunnerCalls, DistinguishesKindsOfNumbers) {
  expect_failed(changed("/expect/result", {{"t", "i4"}, {"v", 1}}),
                "result: expected 1 (i4), got \"a\"");
}
TEST(RunnerCalls, KeepsLoneSurrogatesAndItsOwnMark) {
  Json one = good_case();
  const std::string place = "\"a\\r\\nb\\r\\n\"";
  std::string line = one.dump();
  line.replace(line.find(place), place.size(),
               R"("\ud800\uf8ff0041)"
               "\xEF\xA3\xBF"
               R"(\r\n")");
  line.replace(line.find("\"result\":\"a\""), 12,
               R"("result":"\ud800)"
               "\xEF\xA3\xBF"
               R"(0041\uf8ff")");
  line.replace(line.find("\"v\":\"b\\r\\n\""), 11, "\"v\":\"\"");
  EXPECT_EQ(report_on_text(line).text, "1 passed, 0 failed, 0 skipped\n");
}
TEST(RunnerCalls, ReportsAnUnexpectedError) {
  expect_failed(changed("/args", Json::array()),
                "the case cannot be run: args_after has 1 entries");
  Json one = changed("/args", Json::array());
  one["expect"].erase("args_after");
  expect_failed(one, "error: expected none, got error 4");
}
TEST(RunnerCalls, ReportsAnErrorThatDoesNotCome) {
  expect_failed(changed("/expect/error", {{"number", 5}}),
                "error: expected {\"number\":5}, got none");
}
TEST(RunnerCalls, AcceptsAnAlternative) {
  Json one = changed("/expect/result", "z");
  one["expect"]["alt"] = Json::array({{{"result", "y"}}, {{"result", "a"}}});
  expect_passed(one);
}

TEST(RunnerCalls, RefusesAFileOutsideTheDirectory) {
  for (const char* name : {"../x", "a/../../x", "/x", "..\\x", "C:\\x", "c:x", "", ".", "a\\..\\b"})
    expect_malformed(changed("/files", {{name, ""}}), "file '");
}
TEST(RunnerCalls, RefusesADirectoryOutsideTheDirectory) {
  expect_malformed(changed("/env", {{"mkdir", list("../x")}}), "file '../x': the name leads out");
}
TEST(RunnerCalls, RefusesAnExpectedFileOutsideTheDirectory) {
  expect_malformed(changed("/expect/files_after", {{"../x", ""}}), "file '../x': the name leads");
}
TEST(RunnerCalls, RefusesAFileBelowAFile) {
  expect_malformed(changed("/files", {{"a", ""}, {"a/b", ""}}), "");
}
TEST(RunnerCalls, RefusesContentThatIsNoBytes) {
  expect_malformed(changed("/files", {{"a", "\xE2\x82\xAC"}}), "file content holds a character");
}
TEST(RunnerCalls, ComparesEveryFile) {
  Json one = changed("/files", {{"sub\\a.txt", "x\xC3\xBF"}});
  one["expect"]["files_after"] = {{"sub/a.txt", "x\xC3\xBF"}};
  expect_passed(one);
  one["expect"]["files_after"] = Json::object();
  expect_failed(one, "file sub/a.txt is not expected");
  one["expect"]["files_after"] = {{"sub/a.txt", "y"}};
  expect_failed(one, "file sub/a.txt: expected \"y\", got \"x\\u00ff\"");
  one["expect"]["files_after"] = {{"sub/a.txt", "x\xC3\xBF"}, {"b", ""}};
  expect_failed(one, "file b is missing");
}
TEST(RunnerCalls, SkipsWhatTheRouteCannotSupplyAndCountsTheKeys) {
  const std::string one = changed("/env", {{"printer", "x"}, {"screen", {1, 1}}}).dump();
  const std::string two = changed("/env", {{"printer", "x"}, {"clock", 1}}).dump();
  const Report report = report_on_text(one + "\n" + two + "\n" + good_case().dump() + "\n");
  EXPECT_EQ(report.text,
            "1 skipped: this route cannot supply 'clock'\n"
            "2 skipped: this route cannot supply 'printer'\n"
            "1 passed, 0 failed, 2 skipped\n");
  EXPECT_EQ(report.status, 0);
}
TEST(RunnerCalls, FailsAMalformedCaseThatItWouldSkip) {
  Json one = changed("/env", {{"printer", "x"}});
  one["expect"]["errror"] = 1;
  expect_malformed(one, "expect: unknown field 'errror'");
}
TEST(RunnerCalls, RefusesAnUnknownAnswer) {
  expect_malformed(changed("/env", {{"answers", list("cancel")}}),
                   "answers: neither abort, retry nor ignore");
}
TEST(RunnerCalls, RefusesADriveThatIsNoLetter) {
  expect_malformed(changed("/env", {{"drive", ""}}), "drive: \"\" is no letter");
}
TEST(RunnerCalls, RefusesAScreenWithoutHeight) {
  expect_malformed(changed("/env", {{"screen", list(640)}}), "screen: no width and height");
}
TEST(RunnerCalls, ReportsAnotherDrive) {
  Json one = changed("/env", {{"drive", "D"}});
  one["expect"]["env_after"] = {{"drive", "C"}};
  expect_failed(one, "current drive: expected \"C\", got \"D\"");
}

// Shows an Abort/Retry/Ignore box.
Json message_case(const Json& messages) {
  Json one = changed("/class", "clsFileUtil");
  one["method"] = "MakeAbsolute";
  one["args"] = {text("x", true), {{"t", "nothing"}, {"ref", true}, {"variant", true}}};
  one["env"] = {{"answers", list("abort")}};
  one["expect"] = {{"messages", messages}};
  return one;
}

Json message(const std::string& buttons, const std::string& words) {
  return {{"buttons", buttons}, {"text", words}};
}

TEST(RunnerCalls, ComparesAMessageUpToItsCarriageReturn) {
  expect_passed(
      message_case(list(message("AbortRetryIgnore", "Error in MakeAbsolute:\rother words"))));
}
TEST(RunnerCalls, ComparesAllOfAnExpectedMessageWithoutCarriageReturn) {
  expect_failed(message_case(list(message("AbortRetryIgnore", "Error in MakeAbsolute:"))),
                "message 1: expected AbortRetryIgnore \"Error in MakeAbsolute:\"");
}
TEST(RunnerCalls, ComparesTheButtonsOfAMessage) {
  expect_failed(message_case(list(message("OK", "Error in MakeAbsolute:\r"))),
                "message 1: expected OK");
}
TEST(RunnerCalls, ReportsAMessageThatIsNotExpected) {
  expect_failed(message_case(nullptr), "expected 0 messages, got 1");
}
TEST(RunnerCalls, ReportsAMessageThatDoesNotCome) {
  expect_failed(changed("/expect/messages", list(message("OK", "x"))),
                "expected 1 messages, got 0");
}
TEST(RunnerCalls, RefusesUnknownButtons) {
  expect_malformed(changed("/expect/messages", list(message("YesNo", "x"))),
                   "unknown buttons: YesNo");
}
TEST(RunnerCalls, RefusesAMessageWithoutText) {
  expect_malformed(changed("/expect/messages", Json::array({{{"buttons", "OK"}}})),
                   "field 'text' is missing");
}

}  // namespace
}  // namespace kw::cases
