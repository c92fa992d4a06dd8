#include "entity_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "entity_text.h"
#include "test_folder.h"

namespace kw::bench {
namespace {

std::size_t lines_of(std::size_t number) {
  std::string text;
  append_entity(text, number);
  text.erase(0, text.find(entity_type(number)));
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST(EntityFile, HoldsHalfOfOneTypeAThirdAndASixthOfTheOthers) {
  std::map<std::string_view, int> count;
  for (std::size_t number = 1; number <= 6000; ++number) ++count[entity_type(number)];
  EXPECT_NEAR(count[kHalfType], 3000, 3);
  EXPECT_NEAR(count[kThirdType], 2000, 2);
  EXPECT_NEAR(count[kSixthType], 1000, 1);
}

TEST(EntityFile, HasHalfOfItsEntitiesOnOneLineAndAThirdOnTwo) {
  std::map<std::size_t, int> count;
  for (std::size_t number = 1; number <= 6000; ++number) ++count[lines_of(number)];
  EXPECT_NEAR(count[1], 3000, 3);
  EXPECT_GE(count[2], 1998);
  EXPECT_GT(count[3], 0);
  EXPECT_GT(count[6], 0);
  EXPECT_EQ(count.rbegin()->first, 6u);
}

TEST(EntityFile, HasLinesOf55BytesOnAverage) {
  const TestFolder folder;
  const EntityFile file = make_entity_file(folder.path(), 5000);
  EXPECT_NEAR(static_cast<double>(file.bytes) / static_cast<double>(file.lines), 55.0, 1.0);
}

TEST(EntityFile, FactsDescribeTheFile) {
  const TestFolder folder;
  const EntityFile file = make_entity_file(folder.path(), 1000);
  const std::string text = contents(file.path);
  EXPECT_EQ(file.entities, 1000u);
  EXPECT_EQ(file.bytes, text.size());
  EXPECT_EQ(file.lines, static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
  EXPECT_NE(text.find(" id '" + entity_id(1000) + "' "), std::string::npos);
}

TEST(EntityFile, EndsEveryLineInCrLf) {
  std::string text;
  for (std::size_t number = 1; number <= 600; ++number) append_entity(text, number);
  EXPECT_TRUE(text.ends_with("\r\n"));
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    ASSERT_EQ(text[at - 1], '\r');
  }
}

TEST(EntityFile, IsUsedAgainWhenItIsRight) {
  const TestFolder folder;
  const EntityFile made = make_entity_file(folder.path(), 600);
  const auto written = std::filesystem::last_write_time(made.path);
  const EntityFile found = make_entity_file(folder.path(), 600);
  EXPECT_EQ(std::filesystem::last_write_time(found.path), written);
  EXPECT_EQ(found.half_type_count, made.half_type_count);
  EXPECT_EQ(found.lines, made.lines);
}

TEST(EntityFile, IsGeneratedAgainWhenAByteOfItChanged) {
  const TestFolder folder;
  const EntityFile made = make_entity_file(folder.path(), 600);
  const std::string right = contents(made.path);
  std::string wrong = right;
  wrong[wrong.size() / 2] ^= 1;
  folder.write(made.path.filename().string(), wrong);
  make_entity_file(folder.path(), 600);
  EXPECT_EQ(contents(made.path), right);
}

}  // namespace
}  // namespace kw::bench
