// The type library that the built library carries says what the descriptions say.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "frame/class_table.h"
#include "platform/guid_text.h"
#include "server/class_list.h"
#include "windows/type_library_reader.h"

namespace kw::testing {
namespace {

using frame::Kind;

const TypeLibrary& library() {
  static const TypeLibrary read = read_type_library(KW_LIBRARY);
  return read;
}

// The first spelling of a name holds for the whole type library.
bool same_name(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
  });
}

std::string type_of(Kind kind) {
  static const std::pair<Kind, const char*> kTypes[] = {
      {Kind::text, "BSTR"},
      {Kind::int16, "short"},
      {Kind::int32, "long"},
      {Kind::single, "float"},
      {Kind::real, "double"},
      {Kind::boolean, "VARIANT_BOOL"},
      {Kind::variant, "VARIANT"},
      {Kind::object, "IDispatch*"},
      {Kind::unknown, "IUnknown*"},
      {Kind::collection, "_Collection*"},
      {Kind::text_array, "SAFEARRAY(BSTR)"},
      {Kind::int16_array, "SAFEARRAY(short)"},
      {Kind::int32_array, "SAFEARRAY(long)"},
      {Kind::single_array, "SAFEARRAY(float)"},
      {Kind::real_array, "SAFEARRAY(double)"},
  };
  for (const auto& [one, text] : kTypes)
    if (one == kind) return text;
  return "?";
}

void expect_parameter(const TypeParameter& got, const frame::Parameter& wanted) {
  EXPECT_TRUE(same_name(got.name, wanted.name)) << got.name << " for " << wanted.name;
  EXPECT_EQ(got.type, type_of(wanted.kind) + (wanted.by_reference ? "*" : ""));
  EXPECT_EQ(got.optional || got.has_default, wanted.optional);
  // No other kind of value can be written as a default.
  const bool number =
      wanted.kind == Kind::int16 || wanted.kind == Kind::int32 || wanted.kind == Kind::boolean;
  EXPECT_EQ(got.has_default, wanted.optional && number);
  EXPECT_EQ(got.default_value, wanted.default_value);
}

void expect_method(const TypeMethod& got, const frame::Method& wanted, int slot) {
  SCOPED_TRACE(std::string(wanted.name));
  EXPECT_TRUE(same_name(got.name, wanted.name)) << got.name;
  EXPECT_EQ(got.help, wanted.help);
  EXPECT_EQ(got.id, wanted.id);
  EXPECT_EQ(got.slot, slot);
  const bool has_result = wanted.result != Kind::none;
  ASSERT_EQ(got.parameters.size(), wanted.parameters.size() + (has_result ? 1 : 0));
  for (std::size_t i = 0; i < wanted.parameters.size(); ++i)
    expect_parameter(got.parameters[i], wanted.parameters[i]);
  if (has_result) {
    EXPECT_EQ(got.parameters.back().type, type_of(wanted.result) + "*");
  }
}

TEST(TypeLibrary, HasTheLibrarysIdentity) {
  EXPECT_EQ(library().id, "{D0A0F987-3C26-11D2-805F-00A0244600DF}");
  EXPECT_EQ(library().major, 9);
  EXPECT_EQ(library().minor, 18);
  EXPECT_EQ(library().locale, 0x409u);
}

TEST(TypeLibrary, DescribesEveryInterfaceWithItsSlotsAndNumbers) {
  for (const frame::ClassTable* table : server::classes()) {
    const auto& wanted = table->description();
    SCOPED_TRACE(std::string(wanted.name));
    const TypeEntry* entry = library().find("_" + std::string(wanted.name));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->id, platform::guid_text(wanted.interface_id));
    EXPECT_EQ(entry->major, wanted.version.major);
    EXPECT_EQ(entry->minor, wanted.version.minor);
    EXPECT_TRUE(entry->hidden);
    ASSERT_EQ(entry->methods.size(), wanted.methods.size());
    for (std::size_t i = 0; i < wanted.methods.size(); ++i)
      expect_method(entry->methods[i], wanted.methods[i], static_cast<int>(i) + 7);
  }
}

TEST(TypeLibrary, DescribesEveryClass) {
  for (const frame::ClassTable* table : server::classes()) {
    const auto& wanted = table->description();
    const TypeEntry* entry = library().find(std::string(wanted.name));
    ASSERT_NE(entry, nullptr) << wanted.name;
    EXPECT_EQ(entry->kind, "class");
    EXPECT_EQ(entry->id, platform::guid_text(wanted.class_id));
    EXPECT_EQ(entry->major, wanted.version.major);
    EXPECT_EQ(entry->minor, wanted.version.minor);
    EXPECT_EQ(entry->help, wanted.help);
    EXPECT_FALSE(entry->hidden);
    EXPECT_EQ(entry->members, std::vector<std::string>{"_" + std::string(wanted.name)});
  }
}

TEST(TypeLibrary, KeepsTheNamesOfEarlierInterfaces) {
  for (const auto& [name, count] : {std::pair{"clsParse", 6}, std::pair{"clsFileReadWrite", 12}})
    for (int version = 0; version < count; ++version) {
      const std::string alias = std::string(name) + "___v" + std::to_string(version);
      const TypeEntry* entry = library().find(alias);
      ASSERT_NE(entry, nullptr) << alias;
      EXPECT_EQ(entry->kind, "alias");
      EXPECT_TRUE(entry->hidden);
      EXPECT_EQ(entry->members, std::vector<std::string>{"_" + std::string(name)});
    }
}

TEST(TypeLibrary, DescribesTheCollection) {
  const TypeEntry* entry = library().find("_Collection");
  ASSERT_NE(entry, nullptr);
  EXPECT_TRUE(entry->hidden);
  EXPECT_EQ(entry->id, "{A4C46780-499F-101B-BB78-00AA00383CBB}");
  std::vector<std::pair<std::string, std::int32_t>> methods;
  for (const TypeMethod& method : entry->methods) methods.emplace_back(method.name, method.id);
  EXPECT_EQ(methods, (std::vector<std::pair<std::string, std::int32_t>>{
                         {"Item", 0}, {"Add", 1}, {"Count", 2}, {"Remove", 3}, {"_NewEnum", -4}}));
}

TEST(TypeLibrary, PublishesTheEnumerationsAndTheRecord) {
  const TypeEntry* modes = library().find("FileOpenModes");
  ASSERT_NE(modes, nullptr);
  EXPECT_EQ(modes->id, "{141AA2E2-593E-11D2-805F-00A0244600DF}");
  EXPECT_EQ(modes->members,
            (std::vector<std::string>{"NO_FILE", "REPLACE_FILE", "READ_FILE", "APPEND_FILE",
                                      "BINARY_FILE", "BINARY_WRITE_FILE"}));
  EXPECT_EQ(modes->values, (std::vector<std::int32_t>{-1, 1, 2, 3, 4, 5}));
  const TypeEntry* comments = library().find("eCommentType");
  ASSERT_NE(comments, nullptr);
  EXPECT_EQ(comments->id, "{3C12A71A-08D8-4CE4-B2CC-04CCBF6C970C}");
  EXPECT_EQ(comments->values, (std::vector<std::int32_t>{1, 2}));
  const TypeEntry* record = library().find("tCommentSpec");
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->kind, "record");
  EXPECT_EQ(record->id, "{21BAB82A-3781-4EBE-9E4A-E71C84DB74CF}");
  EXPECT_EQ(record->members, (std::vector<std::string>{"sCommentKey", "sCommentEnd", "lCommentLen",
                                                       "tCommentType"}));
}

}  // namespace
}  // namespace kw::testing
