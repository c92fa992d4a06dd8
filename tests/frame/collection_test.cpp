#include "kwutils/collection.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <thread>
#include <vector>

#include "frame/factory.h"
#include "support/expect_error.h"
#include "support/texts.h"

namespace kw {
namespace {

using testing::number_of;
using testing::Texts;
using testing::texts_of;

TEST(Collection, KeysAreUniqueWithoutRegardToCase) {
  const Collection pumps = Collection::create();
  pumps.add(String(u"first"), u"P1");
  EXPECT_EQ(number_of([&] { pumps.add(String(u"second"), u"p1"); }), 457);
  EXPECT_EQ(pumps.item(u"p1").text().view(), u"first");
  EXPECT_EQ(pumps.count(), 1);
}

TEST(Collection, TheEmptyTextIsAKeyLikeAnyOther) {
  const Collection items = Collection::create();
  items.add(String(u"nameless"), u"");
  EXPECT_TRUE(items.holds_text(u""));
  EXPECT_EQ(number_of([&] { items.add(String(u"again"), u""); }), 457);
}

TEST(Collection, AbsentKeysAndPositionsAreErrorsOfTheirOwn) {
  const Collection items = Collection::create();
  items.add(String(u"only"));
  EXPECT_EQ(number_of([&] { items.item(u"x"); }), 5);
  EXPECT_EQ(number_of([&] { items.item(0); }), 9);
  EXPECT_EQ(number_of([&] { items.item(2); }), 9);
  EXPECT_EQ(number_of([&] { Collection().count(); }), 91);
}

TEST(Collection, AnObjectWithoutTextCountsAsNoText) {
  const Collection items = Collection::create();
  items.add(Variant(Collection::create().object()), u"inner");
  EXPECT_FALSE(items.holds_text(u"inner"));
  EXPECT_EQ(items.count(), 1);
}

TEST(Collection, LateBoundMembersAnswerLikeTheNativeOnes) {
  const Collection items = Collection::create();
  const Variant value(u"b"), key(u"k"), before(std::int32_t{1}), missing = Variant::missing();
  items.add(String(u"a"));
  items.object().call(u"add", {&value, &key});
  items.object().call(u"Add", {&key, &missing, &before});
  EXPECT_EQ(texts_of(items), (Texts{u"k", u"a", u"b"}));
  EXPECT_EQ(items.object().get(u"Count").to_int32(), 3);
  EXPECT_EQ(items.object().call(u"Item", {&key}).text().view(), u"b");
  items.object().call(u"Remove", {&before});
  EXPECT_EQ(texts_of(items), (Texts{u"a", u"b"}));
}

TEST(Collection, EnumeratesInOrder) {
  const Collection items = Collection::create();
  for (const char16_t* text : {u"x", u"y", u"z"}) items.add(String(text));
  std::u16string walked;
  Object::Members members = items.object().members();
  for (Variant member; members.next(member);) walked += member.text().view();
  EXPECT_EQ(walked, u"xyz");
}

TEST(Collection, IsWalkedByItsOwnThreadAlone) {
  const Collection items = Collection::create();
  items.add(String(u"x"));
  Variant walker = items.object().get(u"_NewEnum");
  ASSERT_EQ(walker.raw().vt, kVtUnknown);
  void* found = nullptr;
  ASSERT_EQ(walker.raw().punkVal->QueryInterface(kIidEnumVariant, &found), status::kOk);
  auto* const walk = static_cast<IEnumVARIANT*>(found);
  Variant item;
  IEnumVARIANT* copy = nullptr;
  std::thread other([&] {
    EXPECT_EQ(walk->Next(1, item.address(), nullptr), status::kWrongThread);
    EXPECT_EQ(walk->Skip(1), status::kWrongThread);
    EXPECT_EQ(walk->Reset(), status::kWrongThread);
    EXPECT_EQ(walk->Clone(&copy), status::kWrongThread);
  });
  other.join();
  EXPECT_EQ(copy, nullptr);
  EXPECT_EQ(walk->Next(1, item.address(), nullptr), status::kOk);
  EXPECT_EQ(item.text().view(), u"x");
  walk->Release();
}

TEST(Collection, NothingIsHeldAfterTheLastReference) {
  {
    const Collection items = Collection::create();
    EXPECT_FALSE(frame::nothing_is_held());
  }
  EXPECT_TRUE(frame::nothing_is_held());
}

// Random additions, insertions and removals by key and position, beside a plain list.
TEST(Collection, AgreesWithAPlainListOverRandomChanges) {
  std::mt19937 random(7);
  const Collection items = Collection::create();
  std::vector<std::u16string> plain;
  std::int32_t next = 0;
  for (int step = 0; step < 20000; ++step) {
    const auto pick = [&] { return static_cast<std::int32_t>(random() % plain.size()) + 1; };
    const auto action = random() % 10;
    const String text = String::from_utf8("k" + std::to_string(next++));
    if (action < 5 || plain.empty()) {
      items.add(text.copy(), text);
      plain.emplace_back(text.view());
    } else if (action < 7) {
      const std::int32_t at = pick();
      const Variant value(text.copy()), key(text.copy()), before(at), missing = Variant::missing();
      items.object().call(u"Add", {&value, &key, &before, &missing});
      plain.insert(plain.begin() + at - 1, std::u16string(text));
    } else if (action < 9) {
      const std::int32_t at = pick();
      items.remove(at);
      plain.erase(plain.begin() + at - 1);
    } else {
      const std::int32_t at = pick();
      items.remove(plain[static_cast<std::size_t>(at - 1)]);
      plain.erase(plain.begin() + at - 1);
    }
    if (plain.empty()) continue;
    const std::int32_t at = pick();
    ASSERT_EQ(items.item(at).text().view(), plain[static_cast<std::size_t>(at - 1)]);
  }
  EXPECT_EQ(texts_of(items), plain);
}

}  // namespace
}  // namespace kw
