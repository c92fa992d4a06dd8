// Comparing what the caller's variables hold after a call.
#include <gtest/gtest.h>

#include "runner_support.h"

namespace kw::cases {
namespace {

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

TEST(RunnerArguments, RefusesTooFewArgumentsAfterwards) {
  expect_malformed(changed("/expect/args_after", Json::array()),
                   "args_after has 0 entries for 1 args");
}
TEST(RunnerArguments, RefusesTooManyArgumentsAfterwards) {
  expect_malformed(changed("/expect/args_after", {nullptr, nullptr}),
                   "args_after has 2 entries for 1 args");
}
TEST(RunnerArguments, ComparesArgumentsAfterwards) {
  expect_failed(changed("/expect/args_after/0/v", "z"),
                "argument 1: expected \"z\", got \"b\\u000d\\u000a\"");
}
TEST(RunnerArguments, RefusesAnEntryThatComparesNothing) {
  expect_malformed(changed("/expect/args_after/0", {{"v", "b\r\n"}}),
                   "args_after: an entry compares nothing");
}
TEST(RunnerArguments, ReportsPropertiesOfWhatIsNoObject) {
  expect_failed(changed("/expect/args_after/0", {{"props", {{"Text", "x"}}}}),
                "argument 1: props: no object was passed in");
}
TEST(RunnerArguments, ReportsALogOfACollection) {
  expect_failed(collection_case({{"log", Json::array()}}),
                "argument 3: log: no object was passed in");
}
TEST(RunnerArguments, ReportsHeldItemsOfWhatIsNoCollection) {
  expect_failed(changed("/expect/args_after/0", {{"held", Json::array()}}),
                "argument 1: held: no collection was passed in");
}
TEST(RunnerArguments, ComparesBothPropertiesAndLog) {
  const Json left = {{"Left", 5}};
  expect_passed(object_case({{"props", left}, {"log", Json::array()}}));
  expect_failed(object_case({{"props", {{"Left", 6}}}, {"log", Json::array()}}),
                "argument 1: property Left: expected 6, got 5 (i2)");
  expect_failed(object_case({{"props", left}, {"log", Json::array({{"get", "Left"}})}}),
                "argument 1: expected 1 steps, got 0");
}

const Json kHeld = {item("first", "same"), item("SECOND", "same")};

TEST(RunnerArguments, ComparesItemsKeysAndHeldItems) {
  expect_passed(
      collection_case({{"t", "coll"}, {"items", list(item(nullptr, "a"))}, {"held", kHeld}}));
}
TEST(RunnerArguments, ComparesHeldItemsWhereverTheVariableRefersTo) {
  expect_failed(
      collection_case(
          {{"t", "coll"}, {"items", list(item(nullptr, "a"))}, {"held", list(item("first", "z"))}}),
      "argument 3: held collection: expected 1 items, got 2");
}
TEST(RunnerArguments, ReportsAnotherItem) {
  expect_failed(collection_case({{"t", "coll"}, {"items", list(item(nullptr, "b"))}}),
                "argument 3: item 1: expected \"b\", got \"a\"");
}
TEST(RunnerArguments, ReportsAKeyThatIsNotThere) {
  expect_failed(collection_case({{"t", "coll"}, {"items", list(item("k", "a"))}}),
                "argument 3: item 1: no item has the key \"k\"");
}
TEST(RunnerArguments, TellsItemsOfTheSameTextApartByTheirKeys) {
  expect_failed(collection_case({{"held", list(item("second", "same"), item("first", "same"))}}),
                "argument 3: held collection: item 1: another item has the key \"second\"");
}
TEST(RunnerArguments, LeavesACollectionAsItWas) {
  Json one = collection_case({{"held", list(item("first", "same"), item("second", "other"))}});
  one["expect"]["alt"] = Json::array({{{"args_after", {nullptr, nullptr, {{"held", kHeld}}}}}});
  expect_passed(one);
}
TEST(RunnerArguments, RefusesAnUnknownItem) {
  expect_malformed(collection_case({{"held", list(item("first", {{"t", "str"}}))}}),
                   "item of a collection: neither a text, a number nor an object");
}

}  // namespace
}  // namespace kw::cases
