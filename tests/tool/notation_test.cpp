#include "tool/notation.h"

#include <gtest/gtest.h>

#include "base/unicode.h"

namespace kw::tool {
namespace {

TEST(Notation, TakesAWordAsType) {
  for (const char16_t* type : {u"NODE", u"node", u" Node ", u"É", u"PUMP-2", u"7"})
    EXPECT_EQ(type_fault(type), "");
}

TEST(Notation, RefusesTypesThatNoRecordCanOpenWith) {
  for (const char16_t* type : {u"", u"  ", u"A B", u"A\tB", u"'A", u"A'B", u"\"A", u",A", u";A",
                               u"*A", u"//A", u"/*A", u"Ł", u"A\u00A0B"})
    EXPECT_NE(type_fault(type), "") << to_utf8(type);
}

TEST(Notation, RefusesATypeWhoseUpperCaseThePageLacks) {
  EXPECT_EQ(type_fault(u"µ"), "cannot be stored: 'Μ' (U+039C) is outside code page 1252");
}

TEST(Notation, RefusesTheMarksOfTables) {
  EXPECT_NE(type_fault(u"tble"), "");
  EXPECT_NE(keyword_fault(u"tble"), "");
  EXPECT_NE(keyword_fault(u"xTBLE"), "");
  EXPECT_EQ(keyword_fault(u"table"), "");
}

TEST(Notation, RefusesKeywordsThatAreNoWords) {
  for (const char16_t* keyword : {u"", u"a b", u"a'", u"\"a", u",a", u"ł"})
    EXPECT_NE(keyword_fault(keyword), "") << to_utf8(keyword);
}

TEST(Notation, RefusesIdentifiersThatCannotBeLookedUp) {
  EXPECT_EQ(identifier_fault(u"B 2"), "");
  EXPECT_EQ(identifier_fault(u""), "it is missing");
  EXPECT_EQ(identifier_fault(u"O'B"), "an apostrophe in it cannot be looked up");
  EXPECT_NE(identifier_fault(u"B2 "), "");
}

TEST(Notation, NamesTheCharacterThatThePageLacks) {
  EXPECT_EQ(value_fault(u"Łódź"), "'Ł' (U+0141) is outside code page 1252");
  EXPECT_EQ(value_fault(u"😀"), "'😀' (U+1F600) is outside code page 1252");
}

TEST(Notation, MakesKeywordsOfColumnNames) {
  EXPECT_EQ(keyword_of_column(u" Full  name\tof it "), u"Full_name_of_it");
  EXPECT_EQ(keyword_of_column(u"code"), u"code");
}

}  // namespace
}  // namespace kw::tool
