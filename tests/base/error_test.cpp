#include "kwutils/error.h"

#include <gtest/gtest.h>

namespace kw {
namespace {

TEST(Error, DescriptionNamesTheThingThatFailed) {
  const Error error(ErrorNumber::file_not_found, "plant.ent", 2);
  EXPECT_EQ(error.text(), "File not found: 'plant.ent'");
  EXPECT_EQ(error.system_code, 2);
}

TEST(Error, WithoutADescriptionTheStandardTextServes) {
  EXPECT_EQ(Error(ErrorNumber::overflow).text(), "Overflow");
  EXPECT_STREQ(Error(ErrorNumber::overflow).what(), "Overflow");
}

TEST(Error, UnknownNumbersHaveTheGeneralText) {
  EXPECT_EQ(Error(ErrorNumber{12345}).text(), "Application-defined or object-defined error");
}

}  // namespace
}  // namespace kw
