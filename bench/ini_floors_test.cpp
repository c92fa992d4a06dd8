#include "ini_floors.h"

#include <gtest/gtest.h>

#include "ini_data.h"
#include "test_folder.h"

namespace kw::bench {
namespace {

TEST(IniFloors, FindsEveryEntryInItsSectionOnly) {
  const TestFolder folder;
  const auto file = folder.write("a.ini", ini_text(250, 100));
  for (const std::size_t number : {0, 99, 100, 249}) {
    const std::string value = "value " + std::to_string(number * 7919 % 1'000'003);
    EXPECT_EQ(floor_ini_get(file, ini_section(number, 100), ini_key(number)), value);
  }
  EXPECT_EQ(floor_ini_get(file, "Section0", ini_key(100)), "");
  EXPECT_EQ(floor_ini_get(file, "Section", ini_key(0)), "");
}

TEST(IniFloors, RewritesTheFileAsItIs) {
  const TestFolder folder;
  const std::string text = ini_text(250, 100);
  const auto file = folder.write("a.ini", text);
  for (const bool flush : {false, true}) {
    floor_ini_rewrite(file, flush);
    EXPECT_EQ(contents(file), text);
  }
}

}  // namespace
}  // namespace kw::bench
