// What the tests of absolute and relative paths share: drives of their own, and the two methods.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "files/fake_drives.h"
#include "kwutils/clsFileUtil.h"
#include "support/texts.h"

namespace kw::testing {

struct PathTest : ::testing::Test {
  using Messages = std::vector<std::u16string>;

  std::u16string absolute(std::u16string_view path, const Variant& indicator = Variant::missing()) {
    return text_of(util.MakeAbsolute(String(path), indicator));
  }
  std::u16string relative(std::u16string_view path, const Variant& indicator = Variant::missing()) {
    return text_of(util.UnMakeAbsolute(String(path), indicator));
  }

  FakeDrives host;
  clsFileUtil util;
};

}  // namespace kw::testing
