// A current directory of the test's own, and the example file in it, with the line ends of writers.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/temporary_folder.h"

namespace kw {

inline std::string with_line_ends(std::string_view lines) {
  std::string text;
  for (const char c : lines) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return text;
}

class ExampleFolder : public ::testing::Test {
 protected:
  ExampleFolder() { std::filesystem::current_path(folder_.path()); }
  ~ExampleFolder() override { std::filesystem::current_path(before_); }

  testing::TemporaryFolder folder_;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

}  // namespace kw
