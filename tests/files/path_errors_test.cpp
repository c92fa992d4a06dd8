// What the user is asked when a step fails, and what becomes of the answers.
#include "files/path_test.h"

namespace kw {
namespace {

using PathErrors = testing::PathTest;

constexpr MessageAnswer kAbort = MessageAnswer::abort;
constexpr MessageAnswer kRetry = MessageAnswer::retry;
constexpr MessageAnswer kIgnore = MessageAnswer::ignore;

TEST_F(PathErrors, NameTheMethodAndTheError) {
  host.failing = {u'E'};
  absolute(u"E:x");
  relative(u"E:\\x");
  EXPECT_EQ(host.messages, (Messages{u"Error in MakeAbsolute:\rDevice unavailable",
                                     u"Error in UnMakeAbsolute:\rDevice unavailable"}));
}

TEST_F(PathErrors, AbortEndsTheCallWithNothing) {
  host.failing = {u'E'};
  host.answers = {kAbort};
  EXPECT_EQ(absolute(u"E:\\x"), u"");
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(PathErrors, RetryRepeatsTheStep) {
  host.directories[u'E'] = u"E:\\e";
  host.failing = {u'E'};
  host.failures_left = 2;
  host.answers = {kRetry, kRetry};
  EXPECT_EQ(absolute(u"E:x"), u"E:\\e\\x");
  EXPECT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.drive, u'C');
}

TEST_F(PathErrors, IgnoringAFailedDriveTakesTheDirectoryOfTheCurrentOne) {
  host.failing = {u'E'};
  host.answers = {kIgnore};
  EXPECT_EQ(absolute(u"E:x"), u"C:\\work\\x");
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(PathErrors, WhatIsNoLetterIsNoDrive) {
  host.answers = {kIgnore};
  EXPECT_EQ(absolute(u"1:x"), u"C:\\work\\x");
  EXPECT_EQ(host.messages, Messages{u"Error in MakeAbsolute:\rDevice unavailable"});
}

TEST_F(PathErrors, AReferenceAtTheVeryBeginningIsAnError) {
  host.answers = {kIgnore};
  EXPECT_EQ(absolute(u"..\\x", u""), u"\\..\\x");
  EXPECT_EQ(host.messages, Messages{u"Error in MakeAbsolute:\rInvalid procedure call or argument"});
}

TEST_F(PathErrors, IgnoringAFailedNormalisationKeepsTheStepsBeforeIt) {
  host.answers = {kIgnore};
  EXPECT_EQ(relative(u"\\..\\\\a\\.\\b"), u"\\..\\a\\b");
}

TEST_F(PathErrors, ARetriedReferenceIsToldAgain) {
  host.answers = {kRetry, kAbort};
  // The second reference fails after the first one was told of.
  EXPECT_EQ(absolute(u"C:\\..\\..\\..\\x"), u"");
  ASSERT_EQ(host.messages.size(), 4u);
  EXPECT_EQ(host.messages[0], u"Illegal directory reference 'C:\\..\\..\\..\\x'");
  EXPECT_EQ(host.messages[2], host.messages[0]);
}

TEST_F(PathErrors, NothingIsShownOnceTheCallIsAborted) {
  host.answers = {kAbort};
  EXPECT_EQ(absolute(u"x\\..\\y", Variant(Object())), u"");
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(PathErrors, AnIndicatorThatIsNoTextLeavesNoBaseWhenIgnored) {
  host.answers = {kIgnore};
  EXPECT_EQ(absolute(u"x", Variant(Object())), u"\\x");
  EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(PathErrors, AbortingTheReadingOfTheBaseEndsAlsoWhatWouldNeverEnd) {
  host.answers = {kAbort};
  EXPECT_EQ(relative(u"C:\\x", Variant(Object())), u"");
}

TEST_F(PathErrors, ANetworkPathAsksToo) {
  host.answers = {kRetry, kIgnore};
  EXPECT_EQ(absolute(u"\\\\..\\..\\x"), u"");
  EXPECT_EQ(host.messages.size(), 2u);
}

TEST_F(PathErrors, IgnoringTheReturnToTheDriveLeavesTheOther) {
  host.drive = u'E';
  host.directories[u'E'] = u"E:\\e";
  host.failing = {u'E'};
  host.answers = {kIgnore};
  EXPECT_EQ(relative(u"D:\\x"), u"d:\\x");
  EXPECT_EQ(host.drive, u'D');
}

}  // namespace
}  // namespace kw
