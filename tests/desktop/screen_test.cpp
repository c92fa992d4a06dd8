#include <gtest/gtest.h>

#include "kwutils/boolean.h"
#include "kwutils/variant.h"
#include "windows/built_library.h"

namespace kw::testing {
namespace {

bool has_size(std::int32_t width, std::int32_t height) {
  const Variant pixel_width(width), pixel_height(height);
  return built_object("clsDataEdtUtils")
             .call(u"CheckRez", {&pixel_width, &pixel_height})
             .to_double() != 0;
}

TEST(Screen, HasTheSizeOfTheDisplay) {
  EXPECT_TRUE(has_size(800, 600));
  EXPECT_FALSE(has_size(800, 601));
  EXPECT_FALSE(has_size(801, 600));
}

}  // namespace
}  // namespace kw::testing
