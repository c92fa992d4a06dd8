#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "server/idl_writer.h"

namespace kw::server {
namespace {

std::string content_of(const char* file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

std::size_t count(const std::string& text, const std::string& sought) {
  std::size_t found = 0;
  for (std::size_t at = text.find(sought); at != text.npos; at = text.find(sought, at + 1)) ++found;
  return found;
}

TEST(InterfaceDefinitions, AreCommittedAsTheDescriptionsGiveThem) {
  EXPECT_EQ(content_of(KW_IDL), interface_definitions())
      << "write them anew: kwutils-idl > src/server/kwutils.idl";
}

TEST(InterfaceDefinitions, HoldEveryMethodAndEveryEarlierName) {
  const std::string text = interface_definitions();
  EXPECT_EQ(count(text, "[id(0x600300"), 105u);
  EXPECT_EQ(count(text, "\n  coclass "), 8u);
  EXPECT_EQ(count(text, " clsParse___v"), 6u);
  EXPECT_EQ(count(text, " clsFileReadWrite___v"), 12u);
}

TEST(InterfaceDefinitions, QuoteHelpTexts) {
  EXPECT_NE(interface_definitions().find("in the section \\\"window\\\"."), std::string::npos);
}

}  // namespace
}  // namespace kw::server
