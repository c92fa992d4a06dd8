#include "reference/parent_references.h"

#include <gtest/gtest.h>

#include <string>

#include "files/fake_drives.h"
#include "files/path_text.h"
#include "reference/all_texts.h"
#include "reference/random_inputs.h"
#include "support/expect_error.h"

namespace kw::files {
namespace {

using testing::number_of;

// What became of a path: the resolved one or the error's number, and how often the user was told.
struct Outcome {
  std::u16string path;
  std::int32_t error = 0;
  int messages = 0;
  bool operator==(const Outcome&) const = default;
};

Outcome resolved(std::u16string_view path) {
  testing::FakeDrives host;
  Outcome outcome;
  outcome.error = number_of([&] { outcome.path = ResolveParentReferences(path); });
  outcome.messages = static_cast<int>(host.messages.size());
  return outcome;
}

Outcome resolved_by_steps(std::u16string_view path) {
  Outcome outcome;
  outcome.error = number_of([&] {
    outcome.path = reference::resolve_parent_references(std::u16string(path), outcome.messages);
  });
  return outcome;
}

TEST(ParentReferences, TakeTheFolderBeforeThemOut) {
  EXPECT_EQ(resolved(u"C:\\a\\b\\..\\c").path, u"C:\\a\\c");
  EXPECT_EQ(resolved(u"C:\\a\\b\\..\\..\\c").path, u"C:\\c");
  EXPECT_EQ(resolved(u"a\\..\\b").path, u"\\b");
}

TEST(ParentReferences, OfTheLastFolderOnTheRootLeaveNoRoot) {
  EXPECT_EQ(resolved(u"C:\\a\\..\\..\\x"), (Outcome{u"C\\x", 0, 0}));
}

TEST(ParentReferences, AboveTheRootAreToldAndDamageThePath) {
  EXPECT_EQ(resolved(u"C:\\..\\x"), (Outcome{u"C\\x", 0, 1}));
}

TEST(ParentReferences, AtTheVeryBeginningAreInvalid) {
  EXPECT_EQ(resolved(u"\\..\\x").error, 5);
  EXPECT_EQ(resolved(u"a\\..\\..\\x").error, 5);
}

TEST(ParentReferences, ThatAreNoFolderOfTheirOwnStay) {
  EXPECT_EQ(resolved(u"C:\\a\\..").path, u"C:\\a\\..");
  EXPECT_EQ(resolved(u"C:\\a..\\b").path, u"C:\\a..\\b");
  EXPECT_EQ(resolved(u"C:\\a\\...\\b").path, u"C:\\a\\...\\b");
}

TEST(ParentReferences, OverflowBeyondTheLast16BitPosition) {
  const std::u16string folders(32766, u'a');
  EXPECT_EQ(resolved(folders + u"\\..\\x").path, u"a\\x");
  EXPECT_EQ(resolved(folders + u"a\\..\\x").error, 6);
}

TEST(ParentReferences, AgreeWithTheStepsOnAllShortPaths) {
  reference::for_all_texts(std::u16string_view(u"\\.a"), 10, [](std::u16string_view path) {
    ASSERT_EQ(resolved(path), resolved_by_steps(path));
  });
}

TEST(ParentReferences, AgreeWithTheStepsOnRandomPaths) {
  constexpr std::u16string_view kPieces[] = {u"\\..\\", u"\\", u"..", u"a", u"C:", u"..\\"};
  reference::for_random_inputs(5, [&](reference::Random& random) {
    std::u16string path;
    for (std::size_t count = reference::pick(random, 0, 20); count > 0; --count)
      path += kPieces[reference::pick(random, 0, 5)];
    ASSERT_EQ(resolved(path), resolved_by_steps(path));
  });
}

// Would take minutes if every step began at the beginning.
TEST(ParentReferences, TakeTimeInProportionToThePath) {
  std::u16string path = u"C:";
  for (int i = 0; i < 8000; ++i) path += u"\\aa";
  const std::size_t folders = path.size();
  for (int i = 0; i < 7999; ++i) path += u"\\..";
  path += u"\\x";
  ASSERT_LT(folders, 32767u);
  EXPECT_EQ(resolved(path).path, u"C:\\aa\\x");
  std::u16string pairs = u"C:";
  for (int i = 0; i < 500'000; ++i) pairs += u"\\aa\\..";
  EXPECT_EQ(resolved(pairs + u"\\x").path, u"C:\\x");
}

}  // namespace
}  // namespace kw::files
