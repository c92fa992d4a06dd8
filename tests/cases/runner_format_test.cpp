// Fields and values that no case may hold.
#include <gtest/gtest.h>

#include "runner_support.h"

namespace kw::cases {
namespace {

TEST(RunnerFormat, RefusesAnUnknownFieldOfACase) {
  expect_malformed(changed("/expects", 1), "case: unknown field 'expects'");
}
TEST(RunnerFormat, RefusesAnUnknownExpectation) {
  expect_malformed(changed("/expect/errror", nullptr), "expect: unknown field 'errror'");
}
TEST(RunnerFormat, RefusesAnUnknownExpectationOfAnAlternative) {
  expect_malformed(changed("/expect/alt", Json::array({{{"file_after", 1}}})),
                   "expect: unknown field 'file_after'");
}
TEST(RunnerFormat, RefusesAnUnknownFieldOfAnError) {
  expect_malformed(changed("/expect/error", {{"numbr", 5}}), "error: unknown field 'numbr'");
}
TEST(RunnerFormat, RefusesAnUnknownFieldOfATypedValue) {
  expect_malformed(changed("/args/0/varaint", true), "typed value: unknown field 'varaint'");
}
TEST(RunnerFormat, RefusesAnUnknownFieldOfASetupCall) {
  expect_malformed(changed("/setup", Json::array({{{"method", "ParseRecord"}, {"arg", 1}}})),
                   "setup: unknown field 'arg'");
}
TEST(RunnerFormat, RefusesACaseWithoutExpectations) {
  Json one = changed("/tags", Json::array());
  one.erase("expect");
  expect_malformed(one, "field 'expect' is missing");
}
TEST(RunnerFormat, RefusesACaseWithoutMethod) {
  Json one = changed("/tags", Json::array());
  one.erase("method");
  expect_malformed(one, "field 'method' is missing");
}
TEST(RunnerFormat, RefusesArgumentsThatAreNoList) {
  expect_malformed(changed("/args", "x"), "args: no list");
}
TEST(RunnerFormat, RefusesFilesThatAreNoObject) {
  expect_malformed(changed("/files", Json::array()), "files: no JSON object");
}
TEST(RunnerFormat, FailsForAnUnknownClass) { expect_malformed(changed("/class", "clsNone"), ""); }
TEST(RunnerFormat, FailsForAnUnknownMethod) {
  expect_failed(changed("/method", "ParseNone"), "error: expected none, got error 438");
}

TEST(RunnerFormat, RefusesAnUnknownKindOfValue) {
  expect_malformed(changed("/args/0/t", "string"), "unknown kind of value: string");
}
TEST(RunnerFormat, RefusesAnI2OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "i2"}, {"v", 70000}}), "i2: 70000 is no whole number");
}
TEST(RunnerFormat, RefusesAnI4WithAFraction) {
  expect_malformed(changed("/args/0", {{"t", "i4"}, {"v", 1.5}}), "i4: 1.5 is no whole number");
}
TEST(RunnerFormat, RefusesAnI4OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "i4"}, {"v", 3e9}}), "i4: 3000000000.0 is no whole");
}
TEST(RunnerFormat, RefusesAnR4OutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "r4"}, {"v", 1e39}}), "r4: 1e+39 is too large");
}
TEST(RunnerFormat, RefusesABoolOutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "bool"}, {"v", 40000}}), "bool: 40000 is no whole");
}
TEST(RunnerFormat, RefusesAWordThatIsNoNumber) {
  expect_malformed(changed("/args/0", {{"t", "r8"}, {"v", "NaN"}}), "no number: \"NaN\"");
}
TEST(RunnerFormat, RefusesATextThatIsANumber) {
  expect_malformed(changed("/args/0/v", 5), "str: no text");
}
TEST(RunnerFormat, RefusesAReferenceFlagThatIsNone) {
  expect_malformed(changed("/args/0/ref", "yes"), "ref: neither true nor false");
}
TEST(RunnerFormat, RefusesAnUnknownElementType) {
  expect_malformed(changed("/args/0", {{"t", "array"}, {"of", "i8"}, {"v", nullptr}}),
                   "unknown array element: i8");
}
TEST(RunnerFormat, RefusesAnArrayElementOutOfRange) {
  expect_malformed(changed("/args/0", {{"t", "array"}, {"of", "i2"}, {"v", {1, 70000}}}),
                   "element: 70000 is no whole number");
}
TEST(RunnerFormat, RefusesBoundsThatOverflow) {
  const Json array = {{"t", "array"}, {"of", "i2"}, {"lb", 2147483647}, {"v", {1, 2}}};
  expect_malformed(changed("/args/0", array), "lb: 2147483647 is no whole number");
}
TEST(RunnerFormat, RefusesAnUnknownKindOfObject) {
  expect_malformed(changed("/args/0", {{"t", "object"}, {"kind", "texbox"}}),
                   "unknown kind of object: texbox");
}
TEST(RunnerFormat, RefusesAnExpectedNumberOutOfRangeOfAnAlternative) {
  const Json alternative = {{"args_after", {{{"t", "i2"}, {"v", 70000}}}}};
  expect_malformed(changed("/expect/alt", Json::array({alternative})), "i2: 70000 is no whole");
}

}  // namespace
}  // namespace kw::cases
