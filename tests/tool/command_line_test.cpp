#include "tool/command_line.h"

#include <gtest/gtest.h>

namespace kw::tool {
namespace {

using Words = std::vector<std::string>;

TEST(CommandLine, KeepsArgumentsOfACallFromTheOptionParser) {
  const CommandLine line =
      split_command_line({"call", "--json", "clsQSort", "lQSort", "-5", "--help", "--"});
  EXPECT_EQ(line.words, (Words{"call", "--json", "clsQSort", "lQSort"}));
  EXPECT_EQ(line.call_arguments, (Words{"-5", "--help", "--"}));
}

TEST(CommandLine, LeavesACallWithoutMethodWhole) {
  const CommandLine line = split_command_line({"call", "clsQSort", "--help"});
  EXPECT_EQ(line.words, (Words{"call", "clsQSort", "--help"}));
  EXPECT_TRUE(line.call_arguments.empty());
}

TEST(CommandLine, LeavesOtherCommandsWhole) {
  const CommandLine line = split_command_line({"get", "call", "NODE", "-5"});
  EXPECT_EQ(line.words, (Words{"get", "call", "NODE", "-5"}));
  EXPECT_TRUE(line.call_arguments.empty());
}

TEST(CommandLine, DoesNotTakeTheNextWordForTheBackupSuffix) {
  const CommandLine line = split_command_line({"put", "--backup", "plant.ent"});
  EXPECT_EQ(line.words, (Words{"put", "--backup=~", "plant.ent"}));
}

TEST(CommandLine, KeepsAGivenBackupSuffix) {
  EXPECT_EQ(split_command_line({"put", "--backup=.old"}).words, (Words{"put", "--backup=.old"}));
}

TEST(CommandLine, IsEmptyWithoutWords) { EXPECT_TRUE(split_command_line({}).words.empty()); }

}  // namespace
}  // namespace kw::tool
