#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/temporary_folder.h"

namespace kw::testing {

// A folder in which tests replace a.ent by way of a.tmp.
class Replacements : public ::testing::Test {
 protected:
  using Names = std::vector<std::string>;

  std::unique_ptr<platform::ReplacementFile> start() {
    return platform::files().create_replacement(folder_.name("a.tmp"), folder_.name("a.ent"));
  }

  void replace_with(std::string_view content) {
    const auto file = start();
    file->write(content);
    file->replace();
  }

  TemporaryFolder folder_;
};

}  // namespace kw::testing
