#include "tool/json_writer.h"

#include <gtest/gtest.h>

#include <limits>

namespace kw::tool {
namespace {

template <class Write>
std::string written(Write&& write) {
  Output out;
  JsonWriter json(out);
  json.begin_array();
  write(json);
  json.end();
  return std::string(out.view());
}

TEST(JsonWriter, SeparatesValues) {
  EXPECT_EQ(written([](JsonWriter& json) {
              json.number(std::int64_t{-3});
              json.boolean(true);
              json.null();
            }),
            "[-3, true, null]\n");
}

TEST(JsonWriter, NestsObjectsAndLists) {
  EXPECT_EQ(written([](JsonWriter& json) {
              json.begin_object();
              json.key("a").text("x");
              json.key("b");
              json.begin_array();
              json.end();
              json.end();
            }),
            "[{\"a\": \"x\", \"b\": []}]\n");
}

TEST(JsonWriter, PutsElementsOnLinesOfTheirOwn) {
  Output out;
  JsonWriter json(out);
  json.begin_lines();
  json.text("a");
  json.text("b");
  json.end();
  EXPECT_EQ(out.view(), "[\n  \"a\",\n  \"b\"\n]\n");
}

TEST(JsonWriter, EscapesWhatMustBe) {
  EXPECT_EQ(written([](JsonWriter& json) { json.text(u"\"\\\r\n\t\u0001é"); }),
            "[\"\\\"\\\\\\r\\n\\t\\u0001é\"]\n");
}

TEST(JsonWriter, WritesALoneSurrogateAsAnEscape) {
  const char16_t text[] = {u'a', 0xD83D, u'b', 0xDE00, 0xD83D, 0xDE00};
  EXPECT_EQ(written([&](JsonWriter& json) { json.text(std::u16string_view(text, 6)); }),
            "[\"a\\ud83db\\ude00😀\"]\n");
}

TEST(JsonWriter, WritesRealNumbersAsBriefAsTheyReadBack) {
  EXPECT_EQ(written([](JsonWriter& json) {
              json.number(0.1);
              json.number(0.1f);
              json.number(1e300);
            }),
            "[0.1, 0.1, 1e+300]\n");
}

TEST(JsonWriter, WritesWhatIsNoNumberAsText) {
  EXPECT_EQ(written([](JsonWriter& json) {
              json.number(std::numeric_limits<double>::quiet_NaN());
              json.number(-std::numeric_limits<double>::infinity());
            }),
            "[\"nan\", \"-inf\"]\n");
}

}  // namespace
}  // namespace kw::tool
