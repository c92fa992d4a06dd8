#include "platform/ini/value.h"

#include <gtest/gtest.h>

#include <string>

namespace kw::ini {
namespace {

constexpr std::size_t kCapacity = 1024;

std::string out(std::string_view text) { return std::string(handed_out(text, kCapacity)); }
std::string out_default(std::string_view text) {
  return std::string(handed_out_default(text, kCapacity));
}

TEST(IniValue, OnePairOfQuotesIsDropped) {
  EXPECT_EQ(out("\"a\""), "a");
  EXPECT_EQ(out("'a'"), "a");
  EXPECT_EQ(out("\" a \""), " a ");
  EXPECT_EQ(out("\"\"a\"\""), "\"a\"");
  EXPECT_EQ(out("\"\""), "");
  EXPECT_EQ(out("\"'a'\""), "'a'");
}

TEST(IniValue, UnmatchedQuotesStay) {
  for (const char* text : {"\"", "'", "\"a", "a\"", "\"a'", "\"a\" b"}) EXPECT_EQ(out(text), text);
}

TEST(IniValue, IsCutToTheBuffer) {
  EXPECT_EQ(out(std::string(1023, 'x')).size(), 1023u);
  EXPECT_EQ(out(std::string(1024, 'x')).size(), 1023u);
  EXPECT_EQ(out("\"" + std::string(1023, 'x') + "\"").size(), 1023u);
  EXPECT_EQ(out("\"" + std::string(2000, 'x') + "\""), std::string(1023, 'x'));
  EXPECT_EQ(handed_out("abc", 1), "");
  EXPECT_EQ(handed_out("abc", 0), "");
}

TEST(IniValue, BlanksLeftByTheCutStay) {
  const std::string text = std::string(1020, 'x') + "     y";
  EXPECT_EQ(out(text), std::string(1020, 'x') + "   ");
}

TEST(IniDefault, LosesTheBlanksAtItsEnd) {
  EXPECT_EQ(out_default("a  "), "a");
  EXPECT_EQ(out_default("  a"), "  a");
  EXPECT_EQ(out_default("a \t"), "a \t");
}

TEST(IniDefault, OfBlanksAloneOneStays) {
  EXPECT_EQ(out_default("   "), " ");
  EXPECT_EQ(out_default(" "), " ");
  EXPECT_EQ(out_default(""), "");
}

TEST(IniDefault, GoesTheWayOfAValue) {
  EXPECT_EQ(out_default("\"a\" "), "a");
  EXPECT_EQ(out_default(std::string(2000, 'x')).size(), 1023u);
}

TEST(IniInteger, ReadsTheNumberThatTheTextBeginsWith) {
  struct Row {
    const char* text;
    std::int32_t number;
  };
  constexpr Row kRows[] = {
      {"12", 12},
      {"12abc", 12},
      {"-5", -5},
      {"+3", 3},
      {" 7", 7},
      {"0x10", 16},
      {"0xfF", 255},
      {"0X1f", 0},
      {"0o17", 15},
      {"0b11", 3},
      {"017", 17},
      {"-0x10", -16},
      {"0x", 0},
      {"12.9", 12},
      {"1e3", 1},
      {"1 2", 1},
      {"1,000", 1},
      {"- 5", 0},
      {"--5", 0},
      {"-", 0},
      {"+", 0},
      {"abc", 0},
      {"", 0},
      {"0b12", 1},
      {"0o8", 0},
      {"\t\x01 9", 9},
      {"2147483647", 2147483647},
      {"0xg", 0},
      {"0x1G", 1},
      {"2147483648", -2147483647 - 1},
      {"4294967295", -1},
      {"4294967296", 0},
      {"99999999999", 1215752191},
      {"-2147483649", 2147483647},
  };
  for (const Row& row : kRows) EXPECT_EQ(leading_integer(row.text), row.number) << row.text;
}

}  // namespace
}  // namespace kw::ini
