#include <gtest/gtest.h>

#include "kwutils/clsParse.h"
#include "parse/values.h"
#include "reference/parse_sub_entities.h"
#include "reference/random_inputs.h"

namespace kw {
namespace {

const clsParse kParse;

// A text of these pieces, in which structures are likely.
std::u16string pick_pieces(reference::Random& random, const Texts& pieces, std::size_t most) {
  std::u16string text;
  for (std::size_t count = reference::pick(random, 0, most); count > 0; --count) {
    text += pieces[reference::pick(random, 0, pieces.size() - 1)];
  }
  return text;
}

std::u16string sub_entity(std::u16string_view entity, std::u16string_view token) {
  return text_of(kParse.ParseSubEntity(entity, token));
}

TEST(ParseSubEntity, GivesTheWordsBetweenOpenerAndCloser) {
  EXPECT_EQ(sub_entity(u"NODE a 'b c' d node", u"node"), u"a 'b c' d");
  EXPECT_EQ(sub_entity(u"NODE a 'b c' d node", u"Node"), u"a 'b c' d");
  EXPECT_EQ(sub_entity(u"x  NODE  a   b node NODE c node", u"NODE"), u"a b");
}

TEST(ParseSubEntity, WithoutCloserThereIsNone) {
  EXPECT_EQ(sub_entity(u"NODE a", u"node"), u"");
  EXPECT_EQ(sub_entity(u"Node a node", u"node"), u"");
}

TEST(ParseSubEntity, ACloserInsideAWordOpensTheWayToTheEnd) {
  EXPECT_EQ(sub_entity(u"NODE a b xnode c", u"node"), u"a b xnode c");
}

TEST(ParseSubEntity, LineEndsSeparateWords) {
  EXPECT_EQ(sub_entity(u"NODE a\r\n  b\r\n\r\nc node", u"node"), u"a b c");
}

TEST(ParseSubEntity, ASecondOpenerIsAnOrdinaryWord) {
  EXPECT_EQ(sub_entity(u"X a X b x", u"x"), u"a X b");
}

TEST(ParseSubEntity, QuotedWordsOpenAndCloseNothing) {
  EXPECT_EQ(sub_entity(u"'X' X a 'x' b x", u"x"), u"a 'x' b");
}

TEST(ParseSubEntity, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"X", u"x", u" ", u" ", u" ", u"'", u"a", u"\r\n", u",", u"\r"};
  reference::for_random_inputs(9, [&](reference::Random& random) {
    const auto text = pick_pieces(random, pieces, 25);
    for (const char16_t* token : {u"x", u"X", u"", u"'a'"}) {
      ASSERT_EQ(sub_entity(text, token), reference::parse_sub_entity(text, token));
    }
  });
}

Texts sub_entities(std::u16string_view entity, std::u16string_view token) {
  Collection collection;
  const std::int32_t count = kParse.ParseSubEntitiesIntoColl(entity, token, collection);
  EXPECT_EQ(count, collection.count());
  return texts_of(collection);
}

TEST(ParseSubEntitiesIntoColl, GivesEverySubEntity) {
  EXPECT_EQ(sub_entities(u"X a x X b c x", u"x"), (Texts{u"a", u"b c"}));
  EXPECT_EQ(sub_entities(u"X x y X 'b' x", u"X"), (Texts{u"", u"'b'"}));
}

TEST(ParseSubEntitiesIntoColl, LeavesOutOneThatIsNotClosed) {
  EXPECT_EQ(sub_entities(u"X a x X b", u"x"), (Texts{u"a"}));
  EXPECT_EQ(sub_entities(u"X a", u"x"), Texts());
}

TEST(ParseSubEntitiesIntoColl, ReplacesTheCallersCollection) {
  Collection collection = Collection::create();
  collection.add(Variant(u"old"));
  const Collection held = collection;
  EXPECT_EQ(kParse.ParseSubEntitiesIntoColl(u"nothing here", u"x", collection), 0);
  EXPECT_EQ(collection.count(), 0);
  EXPECT_EQ(held.count(), 1);
}

TEST(ParseSubEntitiesIntoColl, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"X ", u"x ", u" x", u" ", u"'", u"a", u"\r\n", u", "};
  reference::for_random_inputs(10, [&](reference::Random& random) {
    const auto text = pick_pieces(random, pieces, 25);
    for (const char16_t* token : {u"x", u"1"}) {
      ASSERT_EQ(sub_entities(text, token), reference::parse_sub_entities(text, token));
    }
  });
}

struct WordList {
  Texts words;
  std::u16string rest;
  bool operator==(const WordList&) const = default;
};

WordList word_list(std::u16string_view text, std::u16string_view token) {
  String entity(text);
  Collection collection;
  const std::int32_t count = kParse.ParseTokenListIntoColl(entity, token, collection);
  EXPECT_EQ(count, collection.count());
  return {texts_of(collection), text_of(entity)};
}

TEST(ParseTokenListIntoColl, TakesTheListOff) {
  EXPECT_EQ(word_list(u"LST 'p q' r lst rest", u"LST"), (WordList{{u"p q", u"r"}, u"rest\r\n"}));
  EXPECT_EQ(word_list(u"a LST p lst\r\nb\r\n", u"LST"), (WordList{{u"p"}, u"b\r\n"}));
  EXPECT_EQ(word_list(u"LST p\r\nq lst  b  \r\nc", u"LST"), (WordList{{u"p", u"q"}, u"b\r\nc"}));
}

TEST(ParseTokenListIntoColl, TheOpenerIsTakenAsGiven) {
  EXPECT_EQ(word_list(u"LST a lst lst b lst", u"lst"), (WordList{{}, u"b lst\r\n"}));
  EXPECT_EQ(word_list(u"Lst a lst", u"Lst"), (WordList{{u"a"}, u""}));
}

TEST(ParseTokenListIntoColl, WithoutCloserNothingIsRead) {
  EXPECT_EQ(word_list(u"LST a b", u"LST"), (WordList{{}, u"LST a b"}));
}

TEST(ParseTokenListIntoColl, WithoutOpenerTheTextIsConsumed) {
  EXPECT_EQ(word_list(u"a lst b", u"LST"), (WordList{{}, u""}));
}

TEST(ParseTokenListIntoColl, AQuotedWordMayOpenAndClose) {
  EXPECT_EQ(word_list(u"'LST' a 'lst' b", u"LST"), (WordList{{u"a"}, u"b\r\n"}));
}

TEST(ParseTokenListIntoColl, ReplacesTheCallersCollection) {
  Collection collection = Collection::create();
  collection.add(Variant(u"old"));
  const Collection held = collection;
  String entity(u"a");
  EXPECT_EQ(kParse.ParseTokenListIntoColl(entity, u"LST", collection), 0);
  EXPECT_EQ(collection.count(), 0);
  EXPECT_EQ(held.count(), 1);
}

TEST(ParseTokenListIntoColl, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"X ", u"x ", u" x", u" ", u"'", u"a", u"\r\n", u", ", u"\r"};
  reference::for_random_inputs(11, [&](reference::Random& random) {
    const auto text = pick_pieces(random, pieces, 25);
    for (const char16_t* token : {u"X", u"x", u""}) {
      WordList expected{{}, text};
      expected.words = reference::parse_token_list(expected.rest, token);
      ASSERT_EQ(word_list(text, token), expected);
    }
  });
}

std::u16string replaced(std::u16string_view text, const char16_t* token,
                        const char16_t* replacement) {
  String entity(text);
  const String result = kParse.ReplaceEntity(entity, String(token), String(replacement));
  EXPECT_TRUE(entity.empty());
  return text_of(result);
}

TEST(ReplaceEntity, ReplacesTheValueAfterTheKeyword) {
  EXPECT_EQ(replaced(u"id '3' nm 'old' x 1", u"NM", u"'new'"), u"id '3' nm 'new' x 1 ");
  EXPECT_EQ(replaced(u"id '3' nm 'old' x 1", u"  Nm ", u"'new'"), u"id '3' nm 'new' x 1 ");
}

TEST(ReplaceEntity, ReplacesEveryOccurrence) {
  EXPECT_EQ(replaced(u"a 1 b 2 A 3", u"a", u"x y"), u"a x y b 2 A x y ");
}

TEST(ReplaceEntity, AKeywordAtTheEndGetsAValue) {
  EXPECT_EQ(replaced(u"a 1 b", u"b", u"2"), u"a 1 b 2 ");
}

TEST(ReplaceEntity, ALineBreakStaysInItsItem) {
  EXPECT_EQ(replaced(u"a 1\r\nb 2", u"b", u"3"), u"a 1\r\nb 2 ");
  EXPECT_EQ(replaced(u"a 1 \r\n b 2", u"b", u"3"), u"a 1 \r\n b 3 ");
}

TEST(ReplaceEntity, AnEmptyEntityGivesNothing) { EXPECT_EQ(replaced(u"", u"a", u"b"), u""); }

TEST(ReplaceEntity, AQuotedWordIsNoKeyword) {
  EXPECT_EQ(replaced(u"'a' 1 a 2", u"a", u"3"), u"'a' 1 a 3 ");
}

TEST(ReplaceEntity, OneVariableMayBeEverything) {
  String entity(u"a");
  EXPECT_EQ(kParse.ReplaceEntity(entity, entity, entity).view(), u"a a ");
  EXPECT_TRUE(entity.empty());
}

TEST(ReplaceEntity, AgreesWithTheStepsOnRandomTexts) {
  const Texts pieces = {u"a", u"A ", u" ", u"'", u"b", u"\"", u",", u"\r\n"};
  reference::for_random_inputs(12, [&](reference::Random& random) {
    const auto text = pick_pieces(random, pieces, 25);
    for (const char16_t* token : {u"a", u" A ", u"", u"'b'"}) {
      std::u16string entity = text;
      ASSERT_EQ(replaced(text, token, u"'r'"), reference::replace_entity(entity, token, u"'r'"));
    }
  });
}

}  // namespace
}  // namespace kw
