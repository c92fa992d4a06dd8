// The searches against their steps, on files at random.
#include "random_store_test.h"
#include "reference/entity_searches.h"

namespace kw::store {
namespace {

using reference::KeyedList;
using reference::SearchArguments;
using reference::SearchLists;

class RandomSearches : public RandomStoreTest {
 protected:
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
  on_random_files(40, [&](RandomFiles& make, const std::string& content) {
    choose(make);
    store.List2EntitieswithSearch(kName, text(arguments.token), search_token,
                                  text(arguments.search_value), ids, name_token, names, true, false,
                                  third_token, third_list, fourth_token, fourth_list);
    reference::List2EntitieswithSearch({content}, arguments, expected);
    expect_variables();
    if (arguments.fourth_token) expect_list(Collection(fourth_list.to_object()), expected.fourth);
  });
}

TEST_F(RandomSearches, List2EntitieswithSearchandSeekFollowsItsSteps) {
  on_random_files(41, [&](RandomFiles& make, const std::string& content) {
    choose(make);
    arguments.fourth_token.reset();
    arguments.seek = true;
    store.List2EntitieswithSearchandSeek(kName, text(arguments.token), search_token,
                                         text(arguments.search_value), ids, name_token, names, true,
                                         false, true, positions, third_token, third_list);
    reference::List2EntitieswithSearch({content}, arguments, expected);
    expect_variables();
    expect_list(positions, expected.positions);
  });
}

TEST_F(RandomSearches, SubList2EntitieswithSearchFollowsItsSteps) {
  on_random_files(42, [&](RandomFiles& make, const std::string& content) {
    choose(make);
    arguments.third_token.reset();
    arguments.fourth_token.reset();
    const std::string part = make.of({"TBLE", "LINK", "id", "X", "", "x"});
    store.SubList2EntitieswithSearch(kName, text(arguments.token), text(part), search_token,
                                     text(arguments.search_value), ids, name_token, names, true,
                                     false);
    reference::SubList2EntitieswithSearch({content}, part, arguments, expected);
    expect_variables();
    ASSERT_FALSE(HasFatalFailure()) << part;
  });
}

}  // namespace
}  // namespace kw::store
