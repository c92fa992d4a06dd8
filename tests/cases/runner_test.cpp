// The runner of conformance cases must never be the reason why a case passes: each test gives it
// one case that is malformed, or differs from what the library does in one thing, followed by a
// good case. The first must be reported, with what is wrong, and the run must go on to the second.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "runner/json_text.h"
#include "runner/run_files.h"

namespace kw::cases {
namespace {

namespace fs = std::filesystem;

const Library& library() {
  static const Library loaded(KW_LIBRARY);
  return loaded;
}

struct Report {
  int status = 0;
  std::string text;
  std::string last_line;
};

Report report_on(const std::string& path, const std::string& filter = "") {
  std::ostringstream out;
  Run run(library(), filter, out);
  run.run_file(path);
  Report report;
  report.status = run.close();
  report.text = out.str();
  const std::size_t before = report.text.rfind('\n', report.text.size() - 2);
  report.last_line = before == report.text.npos ? report.text : report.text.substr(before + 1);
  return report;
}

// A file of cases that lives as long as the test needs it.
class CaseFile {
 public:
  explicit CaseFile(const std::string& content)
      : path_((fs::temp_directory_path() / ("kw_runner_test_" + std::to_string(std::rand()) +
                                            std::to_string(reinterpret_cast<std::uintptr_t>(this))))
                  .string()) {
    std::ofstream(path_, std::ios::binary) << content;
  }
  CaseFile(const CaseFile&) = delete;
  CaseFile& operator=(const CaseFile&) = delete;
  ~CaseFile() { fs::remove(path_); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

Report report_on_text(const std::string& content, const std::string& filter = "") {
  const CaseFile file(content);
  return report_on(file.path(), filter);
}

// Braces around one JSON value are a list of it, or the value itself, as the compiler likes.
template <class... Values>
Json list(const Values&... values) {
  Json result = Json::array();
  (result.push_back(Json(values)), ...);
  return result;
}

Json text(const std::string& value, bool reference = false) {
  return {{"t", "str"}, {"v", value}, {"ref", reference}};
}

// Takes the first line from a text.
Json good_case() {
  return {{"id", "good"},
          {"class", "clsParse"},
          {"method", "ParseRecord"},
          {"args", list(text("a\r\nb\r\n", true))},
          {"expect", {{"result", "a"}, {"args_after", list(text("b\r\n"))}, {"error", nullptr}}}};
}

Json changed(const std::string& pointer, const Json& value) {
  Json one = good_case();
  one[Json::json_pointer(pointer)] = value;
  one["id"] = "under test";
  return one;
}

// Cuts a text into a collection.
Json collection_case(const Json& expected) {
  Json one = changed("/method", "ParseSubEntitiesIntoColl");
  const Json old = {{"t", "coll"},
                    {"ref", true},
                    {"items", {{{"k", "first"}, {"v", "same"}}, {{"k", "second"}, {"v", "same"}}}}};
  one["args"] = {text("X a x"), text("x"), old};
  one["expect"] = {{"args_after", {nullptr, nullptr, expected}}};
  return one;
}

Json item(const Json& key, const Json& value) { return {{"k", key}, {"v", value}}; }

// Sets the keyboard focus to a form, which is left alone.
Json object_case(const Json& expected) {
  Json one = changed("/class", "clsDataEdtUtils");
  one["method"] = "FocusMe";
  one["args"] = {{{"t", "object"}, {"kind", "form"}, {"props", {{"Left", 5}}}, {"ref", true}}};
  one["expect"] = {{"args_after", list(expected)}};
  return one;
}

void expect_failed_line(const std::string& line, const std::string& reason) {
  const Report report = report_on_text(line + "\n" + good_case().dump() + "\n");
  EXPECT_EQ(report.last_line, "1 passed, 1 failed, 0 skipped\n") << report.text;
  EXPECT_NE(report.text.find(reason), std::string::npos) << report.text;
  EXPECT_EQ(report.status, 1);
}

void expect_failed(const Json& one, const std::string& reason) {
  expect_failed_line(one.dump(), "FAILED under test\n  " + reason);
}

void expect_malformed(const Json& one, const std::string& reason) {
  expect_failed(one, "the case cannot be run: " + reason);
}

void expect_passed(const Json& one) {
  const Report report = report_on_text(one.dump() + "\n");
  EXPECT_EQ(report.text, "1 passed, 0 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 0);
}

TEST(Runner, PassesAGoodCase) { expect_passed(good_case()); }

// Lines and files

TEST(Runner, CountsALineThatIsNoJsonOnce) { expect_failed_line("{\"id\":", ":1: "); }
TEST(Runner, CountsALineThatIsNoObjectOnce) { expect_failed_line("[1, 2]", ":1: no JSON object"); }
TEST(Runner, CountsANumberAloneOnce) { expect_failed_line("5", ":1: no JSON object"); }
TEST(Runner, RefusesInvalidUtf8) { expect_failed_line("{\"id\": \"\xFF\"}", ":1: "); }
TEST(Runner, RefusesEndlessNesting) {
  expect_failed_line("{\"expect\": " + std::string(100000, '['), "nested too deeply");
}
TEST(Runner, RefusesAFieldGivenTwice) {
  expect_failed_line(R"({"id": "x", "id": "y"})", "the name \"id\" occurs twice");
}
TEST(Runner, RefusesAnEscapeWithoutDigits) { expect_failed_line(R"({"id": "\uZZZZ"})", ":1: "); }
TEST(Runner, RefusesACutEscape) { expect_failed_line(R"({"id": "\ud8)", ":1: "); }
TEST(Runner, NamesTheLineOfACaseWithoutId) {
  Json one = changed("/expect/result", "z");
  one.erase("id");
  expect_failed_line(one.dump(), ":1\n  result: expected \"z\", got \"a\"");
}
TEST(Runner, RefusesAnIdThatIsNoText) {
  expect_failed_line(
      [] {
        Json one = good_case();
        one["id"] = 5;
        return one.dump();
      }(),
      "id: no text");
}
TEST(Runner, SkipsBlankLines) {
  EXPECT_EQ(report_on_text("\n \t\r\n" + good_case().dump() + "\r\n").text,
            "1 passed, 0 failed, 0 skipped\n");
}
TEST(Runner, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(report_on_text(good_case().dump()).text, "1 passed, 0 failed, 0 skipped\n");
}
TEST(Runner, RunsOnlyWhatTheFilterFinds) {
  const std::string other = changed("/tags", list("other")).dump();
  EXPECT_EQ(report_on_text(good_case().dump() + "\n" + other + "\n", "other").last_line,
            "1 passed, 0 failed, 0 skipped\n");
}
TEST(Runner, FailsForAMissingFile) {
  const Report report = report_on("no such file.jsonl");
  EXPECT_EQ(report.text,
            "FAILED no such file.jsonl: cannot be read\n0 passed, 1 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 1);
}
TEST(Runner, FailsForADirectory) {
  const Report report = report_on(".");
  EXPECT_EQ(report.text, "FAILED .: cannot be read\n0 passed, 1 failed, 0 skipped\n");
  EXPECT_EQ(report.status, 1);
}

// Fields

TEST(Runner, RefusesAnUnknownFieldOfACase) {
  expect_malformed(changed("/expects", 1), "case: unknown field 'expects'");
}
TEST(Runner, RefusesAnUnknownExpectation) {
  expect_malformed(changed("/expect/errror", nullptr), "expect: unknown field 'errror'");
}
TEST(Runner, RefusesAnUnknownExpectationOfAnAlternative) {
  expect_malformed(changed("/expect/alt", Json::array({{{"file_after", 1}}})),
                   "expect: unknown field 'file_after'");
}
TEST(Runner, RefusesAnUnknownFieldOfAnError) {
  expect_malformed(changed("/expect/error", {{"numbr", 5}}), "error: unknown field 'numbr'");
}
TEST(Runner, RefusesAnUnknownFieldOfATypedValue) {
  expect_malformed(changed("/args/0/varaint", true), "typed value: unknown field 'varaint'");
}
TEST(Runner, RefusesAnUnknownFieldOfASetupCall) {
  expect_malformed(changed("/setup", Json::array({{{"method", "ParseRecord"}, {"arg", 1}}})),
                   "setup: unknown field 'arg'");
}
TEST(Runner, RefusesACaseWithoutExpectations) {
  Json one = changed("/tags", Json::array());
  one.erase("expect");
  expect_malformed(one, "field 'expect' is missing");
}
TEST(Runner, RefusesACaseWithoutMethod) {
  Json one = changed("/tags", Json::array());
  one.erase("method");
  expect_malformed(one, "field 'method' is missing");
}
TEST(Runner, RefusesArgumentsThatAreNoList) {
  expect_malformed(changed("/args", "x"), "args: no list");
}
TEST(Runner, RefusesFilesThatAreNoObject) {
  expect_malformed(changed("/files", Json::array()), "files: no JSON object");
}
TEST(Runner, FailsForAnUnknownClass) { expect_malformed(changed("/class", "clsNone"), ""); }
TEST(Runner, FailsForAnUnknownMethod) {
  expect_failed(changed("/method", "ParseNone"), "error: expected none, got error 438");
}

// Calls

TEST(Runner, RefusesToRepeatNever) {
  expect_malformed(changed("/repeat", 0), "repeat must be at least 1");
}
TEST(Runner, RefusesANegativeRepeat) {
  expect_malformed(changed("/repeat", -3), "repeat must be at least 1");
}
TEST(Runner, RefusesHalfARepeat) {
  expect_malformed(changed("/repeat", 1.5), "repeat: 1.5 is no whole number");
}
TEST(Runner, RefusesARepeatWithoutEnd) {
  expect_malformed(changed("/repeat", 2000000000), "repeat must be at most");
}
TEST(Runner, RefusesOneResultForARepeatedCall) {
  expect_malformed(changed("/repeat", 1), "the result of a repeated call is a list");
}
TEST(Runner, RefusesAListOfResultsForOneCall) {
  expect_malformed(changed("/expect/result", list("a")), "a list of results needs 'repeat'");
}
TEST(Runner, ComparesEveryRepeatedResult) {
  Json one = changed("/repeat", 2);
  one["expect"] = {{"result", {"a", "b"}}, {"args_after", list(text(""))}};
  expect_passed(one);
  one["expect"]["result"] = {"z", "b"};
  expect_failed(one, "result: call 1: expected \"z\", got \"a\"");
  one["expect"]["result"] = list("a");
  expect_failed(one, "result: expected 1 results, got 2");
}
TEST(Runner, NamesASetupCallThatFails) {
  expect_malformed(changed("/setup", Json::array({{{"method", "ParseNone"}}})),
                   "setup call ParseNone: error 438");
}
TEST(Runner, MakesSetupCallsOnTheSameObject) {
  expect_passed(changed(
      "/setup", Json::array({{{"method", "ParseRecord"}, {"args", list(text("q", true))}}})));
}
TEST(Runner, RefusesAnUnknownModeOfOpening) {
  Json one = changed("/files", {{"a.txt", "x"}});
  one["open"] = Json::array({{{"number", 1}, {"name", "a.txt"}, {"mode", "append"}}});
  expect_malformed(one, "open: unknown mode 'append'");
}
TEST(Runner, ClosesWhatItOpenedWhenALaterFileCannotBeOpened) {
  Json one = changed("/files", {{"a.txt", "x"}});
  one["open"] = Json::array({{{"number", 7}, {"name", "a.txt"}, {"mode", "input"}},
                             {{"number", 8}, {"name", "none.txt"}, {"mode", "input"}}});
  expect_malformed(one, "File not found");
  one["open"].erase(1);
  expect_passed(one);
}

// Values

TEST(Runner, RefusesAnUnknownKindOfValue) {
  expect_malformed(changed("/args/0/t", "string"), "unknown kind of value: string");
}
TEST(Runner, RefusesAnI2OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "i2"}, {"v", 70000}}), "i2: 70000 is no whole number");
}
TEST(Runner, RefusesAnI4WithAFraction) {
  expect_malformed(changed("/args/0", {{"t", "i4"}, {"v", 1.5}}), "i4: 1.5 is no whole number");
}
TEST(Runner, RefusesAnI4OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "i4"}, {"v", 3e9}}), "i4: 3000000000.0 is no whole");
}
TEST(Runner, RefusesAnR4OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "r4"}, {"v", 1e39}}), "r4: 1e+39 is too large");
}
TEST(Runner, RefusesABoolOutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "bool"}, {"v", 40000}}), "bool: 40000 is no whole");
}
TEST(Runner, RefusesAWordThatIsNoNumber) {
  expect_malformed(changed("/args/0", {{"t", "r8"}, {"v", "NaN"}}), "no number: \"NaN\"");
}
TEST(Runner, RefusesATextThatIsANumber) {
  expect_malformed(changed("/args/0/v", 5), "str: no text");
}
TEST(Runner, RefusesAReferenceFlagThatIsNone) {
  expect_malformed(changed("/args/0/ref", "yes"), "ref: neither true nor false");
}
TEST(Runner, RefusesAnUnknownElementType) {
  expect_malformed(changed("/args/0", {{"t", "array"}, {"of", "i8"}, {"v", nullptr}}),
                   "unknown array element: i8");
}
TEST(Runner, RefusesAnArrayElementOutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "array"}, {"of", "i2"}, {"v", {1, 70000}}}),
                   "element: 70000 is no whole number");
}
TEST(Runner, RefusesBoundsThatOverflow) {
  const Json array = {{"t", "array"}, {"of", "i2"}, {"lb", 2147483647}, {"v", {1, 2}}};
  expect_malformed(changed("/args/0", array), "lb: 2147483647 is no whole number");
}
TEST(Runner, RefusesAnUnknownKindOfObject) {
  expect_malformed(changed("/args/0", {{"t", "object"}, {"kind", "texbox"}}),
                   "unknown kind of object: texbox");
}
TEST(Runner, RefusesAnExpectedNumberOutOfRangeOfAnAlternative) {
  const Json alternative = {{"args_after", {{{"t", "i2"}, {"v", 70000}}}}};
  expect_malformed(changed("/expect/alt", Json::array({alternative})), "i2: 70000 is no whole");
}

// Results

TEST(Runner, ReportsExpectedAndGot) {
  expect_failed(changed("/expect/result", "\xC3\xA9"), "result: expected \"\\u00e9\", got \"a\"");
}
TEST(Runner, TakesNullForNoResult) {
  expect_failed(changed("/expect/result", nullptr), "result: expected null, got \"a\"");
}
TEST(Runner, ComparesNoResultWhenNoneIsGiven) {
  Json one = good_case();
  one["expect"].erase("result");
  expect_passed(one);
}
TEST(Runner, DistinguishesKindsOfNumbers) {
  expect_failed(changed("/expect/result", {{"t", "i4"}, {"v", 1}}),
                "result: expected 1 (i4), got \"a\"");
}
TEST(Runner, KeepsLoneSurrogatesAndItsOwnMark) {
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
TEST(Runner, ReportsAnUnexpectedError) {
  expect_failed(changed("/args", Json::array()),
                "the case cannot be run: args_after has 1 entries");
  Json one = changed("/args", Json::array());
  one["expect"].erase("args_after");
  expect_failed(one, "error: expected none, got error 4");
}
TEST(Runner, ReportsAnErrorThatDoesNotCome) {
  expect_failed(changed("/expect/error", {{"number", 5}}),
                "error: expected {\"number\":5}, got none");
}
TEST(Runner, AcceptsAnAlternative) {
  Json one = changed("/expect/result", "z");
  one["expect"]["alt"] = Json::array({{{"result", "y"}}, {{"result", "a"}}});
  expect_passed(one);
}

// Arguments afterwards

TEST(Runner, RefusesTooFewArgumentsAfterwards) {
  expect_malformed(changed("/expect/args_after", Json::array()),
                   "args_after has 0 entries for 1 args");
}
TEST(Runner, RefusesTooManyArgumentsAfterwards) {
  expect_malformed(changed("/expect/args_after", {nullptr, nullptr}),
                   "args_after has 2 entries for 1 args");
}
TEST(Runner, ComparesArgumentsAfterwards) {
  expect_failed(changed("/expect/args_after/0/v", "z"),
                "argument 1: expected \"z\", got \"b\\u000d\\u000a\"");
}
TEST(Runner, RefusesAnEntryThatComparesNothing) {
  expect_malformed(changed("/expect/args_after/0", {{"v", "b\r\n"}}),
                   "args_after: an entry compares nothing");
}
TEST(Runner, ReportsPropertiesOfWhatIsNoObject) {
  expect_failed(changed("/expect/args_after/0", {{"props", {{"Text", "x"}}}}),
                "argument 1: props: no object was passed in");
}
TEST(Runner, ReportsALogOfACollection) {
  expect_failed(collection_case({{"log", Json::array()}}),
                "argument 3: log: no object was passed in");
}
TEST(Runner, ReportsHeldItemsOfWhatIsNoCollection) {
  expect_failed(changed("/expect/args_after/0", {{"held", Json::array()}}),
                "argument 1: held: no collection was passed in");
}
TEST(Runner, ComparesBothPropertiesAndLog) {
  const Json left = {{"Left", 5}};
  expect_passed(object_case({{"props", left}, {"log", Json::array()}}));
  expect_failed(object_case({{"props", {{"Left", 6}}}, {"log", Json::array()}}),
                "argument 1: property Left: expected 6, got 5 (i2)");
  expect_failed(object_case({{"props", left}, {"log", Json::array({{"get", "Left"}})}}),
                "argument 1: expected 1 steps, got 0");
}

// Collections

const Json kHeld = {item("first", "same"), item("SECOND", "same")};

TEST(Runner, ComparesItemsKeysAndHeldItems) {
  expect_passed(
      collection_case({{"t", "coll"}, {"items", list(item(nullptr, "a"))}, {"held", kHeld}}));
}
TEST(Runner, ComparesHeldItemsWhereverTheVariableRefersTo) {
  expect_failed(
      collection_case(
          {{"t", "coll"}, {"items", list(item(nullptr, "a"))}, {"held", list(item("first", "z"))}}),
      "argument 3: held collection: expected 1 items, got 2");
}
TEST(Runner, ReportsAnotherItem) {
  expect_failed(collection_case({{"t", "coll"}, {"items", list(item(nullptr, "b"))}}),
                "argument 3: item 1: expected \"b\", got \"a\"");
}
TEST(Runner, ReportsAKeyThatIsNotThere) {
  expect_failed(collection_case({{"t", "coll"}, {"items", list(item("k", "a"))}}),
                "argument 3: item 1: no item has the key \"k\"");
}
TEST(Runner, TellsItemsOfTheSameTextApartByTheirKeys) {
  expect_failed(collection_case({{"held", list(item("second", "same"), item("first", "same"))}}),
                "argument 3: held collection: item 1: another item has the key \"second\"");
}
TEST(Runner, LeavesACollectionAsItWas) {
  Json one = collection_case({{"held", list(item("first", "same"), item("second", "other"))}});
  one["expect"]["alt"] = Json::array({{{"args_after", {nullptr, nullptr, {{"held", kHeld}}}}}});
  expect_passed(one);
}
TEST(Runner, RefusesAnUnknownItem) {
  expect_malformed(collection_case({{"held", list(item("first", {{"t", "str"}}))}}),
                   "item of a collection: neither a text, a number nor an object");
}

// Files and environment

TEST(Runner, RefusesAFileOutsideTheDirectory) {
  for (const char* name : {"../x", "a/../../x", "/x", "..\\x", "C:\\x", "c:x", "", ".", "a\\..\\b"})
    expect_malformed(changed("/files", {{name, ""}}), "file '");
}
TEST(Runner, RefusesADirectoryOutsideTheDirectory) {
  expect_malformed(changed("/env", {{"mkdir", list("../x")}}), "file '../x': the name leads out");
}
TEST(Runner, RefusesAnExpectedFileOutsideTheDirectory) {
  expect_malformed(changed("/expect/files_after", {{"../x", ""}}), "file '../x': the name leads");
}
TEST(Runner, RefusesAFileBelowAFile) {
  expect_malformed(changed("/files", {{"a", ""}, {"a/b", ""}}), "");
}
TEST(Runner, RefusesContentThatIsNoBytes) {
  expect_malformed(changed("/files", {{"a", "\xE2\x82\xAC"}}), "file content holds a character");
}
TEST(Runner, ComparesEveryFile) {
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
TEST(Runner, SkipsWhatTheRouteCannotSupplyAndCountsTheKeys) {
  const std::string one = changed("/env", {{"printer", "x"}, {"screen", {1, 1}}}).dump();
  const std::string two = changed("/env", {{"printer", "x"}, {"clock", 1}}).dump();
  const Report report = report_on_text(one + "\n" + two + "\n" + good_case().dump() + "\n");
  EXPECT_EQ(report.text,
            "1 skipped: this route cannot supply 'clock'\n"
            "2 skipped: this route cannot supply 'printer'\n"
            "1 passed, 0 failed, 2 skipped\n");
  EXPECT_EQ(report.status, 0);
}
TEST(Runner, FailsAMalformedCaseThatItWouldSkip) {
  Json one = changed("/env", {{"printer", "x"}});
  one["expect"]["errror"] = 1;
  expect_malformed(one, "expect: unknown field 'errror'");
}
TEST(Runner, RefusesAnUnknownAnswer) {
  expect_malformed(changed("/env", {{"answers", list("cancel")}}),
                   "answers: neither abort, retry nor ignore");
}
TEST(Runner, RefusesADriveThatIsNoLetter) {
  expect_malformed(changed("/env", {{"drive", ""}}), "drive: \"\" is no letter");
}
TEST(Runner, RefusesAScreenWithoutHeight) {
  expect_malformed(changed("/env", {{"screen", list(640)}}), "screen: no width and height");
}
TEST(Runner, ReportsAnotherDrive) {
  Json one = changed("/env", {{"drive", "D"}});
  one["expect"]["env_after"] = {{"drive", "C"}};
  expect_failed(one, "current drive: expected \"C\", got \"D\"");
}

// Messages

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

TEST(Runner, ComparesAMessageUpToItsCarriageReturn) {
  expect_passed(
      message_case(list(message("AbortRetryIgnore", "Error in MakeAbsolute:\rother words"))));
}
TEST(Runner, ComparesAllOfAnExpectedMessageWithoutCarriageReturn) {
  expect_failed(message_case(list(message("AbortRetryIgnore", "Error in MakeAbsolute:"))),
                "message 1: expected AbortRetryIgnore \"Error in MakeAbsolute:\"");
}
TEST(Runner, ComparesTheButtonsOfAMessage) {
  expect_failed(message_case(list(message("OK", "Error in MakeAbsolute:\r"))),
                "message 1: expected OK");
}
TEST(Runner, ReportsAMessageThatIsNotExpected) {
  expect_failed(message_case(nullptr), "expected 0 messages, got 1");
}
TEST(Runner, ReportsAMessageThatDoesNotCome) {
  expect_failed(changed("/expect/messages", list(message("OK", "x"))),
                "expected 1 messages, got 0");
}
TEST(Runner, RefusesUnknownButtons) {
  expect_malformed(changed("/expect/messages", list(message("YesNo", "x"))),
                   "unknown buttons: YesNo");
}
TEST(Runner, RefusesAMessageWithoutText) {
  expect_malformed(changed("/expect/messages", Json::array({{{"buttons", "OK"}}})),
                   "field 'text' is missing");
}

}  // namespace
}  // namespace kw::cases
