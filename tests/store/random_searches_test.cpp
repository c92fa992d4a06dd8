// The searches against their steps, on files at random.
#include "random_files.h"
#include "reference/entity_searches.h"
#include "store_test.h"

namespace kw::store {
namespace {

using reference::KeyedList;
using reference::Random;
using reference::SearchArguments;
using reference::SearchLists;

class RandomSearches : public StoreTest {
 protected:
  static constexpr auto kName = u"a.ent";

  // Random arguments, and the variables that the method is given for them.
  void choose(RandomFiles& make) {
    expected = {};
    arguments = {};
    arguments.token = make.of({"NODE", "NODE", "NODE", "node", "LINK", "", "EDGE"});
    arguments.search_token = make.keyword();
    arguments.search_value = make.of({"", "", "", "nm 'Inlet'", "id 'B1' x", " q 'B1'", "'nm'"});
    arguments.name_token = make.keyword();
    if (make.pick(0, 1) == 0) arguments.third_token = make.of({"q", "x\ty", "nm'", ""});
    if (make.pick(0, 1) == 0) arguments.fourth_token = make.of({"x", "id", "width '"});
    search_token = text(arguments.search_token);
    name_token = text(arguments.name_token);
    third_token = given(arguments.third_token);
    third_list = given(arguments.third_token);
    fourth_token = given(arguments.fourth_token);
    fourth_list = given(arguments.fourth_token);
  }
  static Variant given(const std::optional<std::string>& token) {
    return token ? Variant(text(*token)) : Variant::missing();
  }

  void expect_list(const Collection& list, const KeyedList& wanted) {
    ASSERT_EQ(items(list, wanted).items, wanted.items);
  }
  void expect_variables() {
    expect_list(ids, expected.ids);
    expect_list(names, expected.names);
    if (arguments.third_token) {
      ASSERT_EQ(bytes(third_token.text()), *arguments.third_token);
      expect_list(Collection(third_list.to_object()), expected.third);
    }
    ASSERT_EQ(bytes(search_token), arguments.search_token);
    ASSERT_EQ(bytes(name_token), arguments.name_token);
  }

  SearchArguments arguments;
  SearchLists expected;
  String search_token, name_token;
  Variant third_token, third_list, fourth_token, fourth_list;
  Collection ids, names, positions;
};

TEST_F(RandomSearches, List2EntitieswithSearchFollowsItsSteps) {
  reference::for_random_inputs(40, [&](Random& random) {
    RandomFiles make(random);
    const std::string content = make.file();
    files.put(kName, content);
    files.piece = make.piece();
    choose(make);
    store.List2EntitieswithSearch(kName, text(arguments.token), search_token,
                                  text(arguments.search_value), ids, name_token, names, true, false,
                                  third_token, third_list, fourth_token, fourth_list);
    reference::List2EntitieswithSearch({content}, arguments, expected);
    expect_variables();
    if (arguments.fourth_token) expect_list(Collection(fourth_list.to_object()), expected.fourth);
    ASSERT_FALSE(HasFatalFailure()) << ::testing::PrintToString(content);
  });
}

TEST_F(RandomSearches, List2EntitieswithSearchandSeekFollowsItsSteps) {
  reference::for_random_inputs(41, [&](Random& random) {
    RandomFiles make(random);
    const std::string content = make.file();
    files.put(kName, content);
    files.piece = make.piece();
    choose(make);
    arguments.fourth_token.reset();
    arguments.seek = true;
    store.List2EntitieswithSearchandSeek(kName, text(arguments.token), search_token,
                                         text(arguments.search_value), ids, name_token, names, true,
                                         false, true, positions, third_token, third_list);
    reference::List2EntitieswithSearch({content}, arguments, expected);
    expect_variables();
    expect_list(positions, expected.positions);
    ASSERT_FALSE(HasFatalFailure()) << ::testing::PrintToString(content);
  });
}

TEST_F(RandomSearches, SubList2EntitieswithSearchFollowsItsSteps) {
  reference::for_random_inputs(42, [&](Random& random) {
    RandomFiles make(random);
    const std::string content = make.file();
    files.put(kName, content);
    files.piece = make.piece();
    choose(make);
    arguments.third_token.reset();
    arguments.fourth_token.reset();
    const std::string part = make.of({"TBLE", "LINK", "id", "X", "", "x"});
    store.SubList2EntitieswithSearch(kName, text(arguments.token), text(part), search_token,
                                     text(arguments.search_value), ids, name_token, names, true,
                                     false);
    reference::SubList2EntitieswithSearch({content}, part, arguments, expected);
    expect_variables();
    ASSERT_FALSE(HasFatalFailure()) << part << '|' << ::testing::PrintToString(content);
  });
}

}  // namespace
}  // namespace kw::store
