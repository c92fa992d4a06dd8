// The host processes its messages during a search, and there does what hosts do: it lets go of the
// object, changes the variables that it passed, calls the same object, rewrites the file. The calls
// come late-bound, as from any client, so that nothing but the library keeps alive what it uses.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>

#include "frame/factory.h"
#include "kwutils/array.h"
#include "kwutils/clsFileReadWrite.h"
#include "kwutils/host.h"
#include "platform/temporary_folder.h"
#include "server/class_list.h"
#include "support/texts.h"

namespace kw::store {
namespace {

using kw::testing::TemporaryFolder;

constexpr int kEntities = 300;

struct Search {
  const char* name;
  std::u16string_view method;
};

std::ostream& operator<<(std::ostream& out, const Search& search) { return out << search.name; }

class ReentryDuringSearch : public ::testing::TestWithParam<Search> {
 protected:
  ReentryDuringSearch() {
    folder_.write("a.ent", entities("old"));
    void* made = nullptr;
    frame::create_object(*server::find_class(u"clsFileReadWrite"), kIidDispatch, &made);
    object_ = Object::attach(static_cast<IDispatch*>(made));
    HostFunctions host;
    host.context = this;
    host.process_events = [](void* context) KW_STDCALL {
      auto& test = *static_cast<ReentryDuringSearch*>(context);
      ++test.turns_;
      if (test.turn_) test.turn_();
    };
    set_host(host);
  }
  ~ReentryDuringSearch() override { set_host(HostFunctions()); }

  static std::string entities(const std::string& name, int count = kEntities) {
    std::string text;
    for (int i = 1; i <= count; ++i) {
      const std::string items = "id 'e" + std::to_string(i) + "' nm '" + name + "'";
      text += "; a comment\r\nPIPE SEG " + items + " seg pipe\r\n";
    }
    return text;
  }

  bool lists_parts() const { return GetParam().method == u"SubList2EntitieswithSearch"; }

  static VARIANT reference_to(Variant& variable) {
    VARIANT reference = {};
    reference.vt = kVtByRef | kVtVariant;
    reference.pvarVal = variable.address();
    return reference;
  }
  // As an early-bound client passes an object variable: the address of the reference itself.
  static VARIANT reference_to_object(Variant& variable) {
    VARIANT reference = {};
    reference.vt = kVtByRef | kVtDispatch;
    reference.byref = &variable.address()->pdispVal;
    return reference;
  }

  HRESULT search() {
    const Variant file{String(folder_.name("a.ent"))}, yes(Boolean(true));
    const Variant type(u"PIPE"), part(u"SEG"), nothing(u"");
    std::vector<VARIANT> sent = {file.raw(), type.raw()};
    if (lists_parts()) sent.push_back(part.raw());
    for (const VARIANT& argument :
         {reference_to(search_token_), reference_to(search_value_), reference_to_object(ids_),
          reference_to(name_token_), reference_to_object(names_), no_.raw(), yes.raw()})
      sent.push_back(argument);
    if (GetParam().method == u"List2EntitieswithSearchandSeek") {
      sent.push_back(yes.raw());
      sent.push_back(reference_to_object(positions_));
    }
    return call(GetParam().method, std::move(sent));
  }

  HRESULT call(std::u16string_view method, std::vector<VARIANT> sent) const {
    IDispatch* object = object_.pointer();  // nothing here keeps it alive during the call
    std::u16string name(method);
    char16_t* names[] = {name.data()};
    DISPID id = 0;
    object->GetIDsOfNames(kNullGuid, names, 1, 0, &id);
    std::reverse(sent.begin(), sent.end());
    DISPPARAMS parameters = {sent.data(), nullptr, static_cast<std::uint32_t>(sent.size()), 0};
    return object->Invoke(id, kNullGuid, 0, kDispatchMethod, &parameters, nullptr, nullptr,
                          nullptr);
  }

  static Variant new_list() { return Variant(Collection::create().object()); }
  static std::int32_t count(const Variant& list) {
    return list.to_object().get(u"Count").to_int32();
  }
  static std::u16string text_at(const Variant& list, std::int32_t position) {
    return testing::text_of(Collection(list.to_object()).item(position).text());
  }
  static void set_nothing(Variant& variable) {
    std::exchange(variable.address()->pdispVal, nullptr)->Release();
  }
  void expect_all_listed() {
    EXPECT_EQ(count(ids_), kEntities);
    EXPECT_EQ(count(names_), kEntities);
    EXPECT_EQ(turns_, kEntities);
  }

  TemporaryFolder folder_;
  Object object_;
  Variant search_token_{u"id"}, search_value_{u""}, name_token_{u"nm"};
  Variant ids_ = new_list(), names_ = new_list(), positions_ = new_list();
  const Variant no_{Boolean(false)};
  std::function<void()> turn_;
  int turns_ = 0;
};

TEST_P(ReentryDuringSearch, HasOneTurnForEachEntity) {
  EXPECT_EQ(search(), status::kOk);
  expect_all_listed();
}

TEST_P(ReentryDuringSearch, TheLastReferenceToTheObjectMayGo) {
  turn_ = [&] { object_.reset(); };
  EXPECT_EQ(search(), status::kOk);
  expect_all_listed();
}

TEST_P(ReentryDuringSearch, TheObjectIsGoneAfterwards) {
  turn_ = [&] { object_.reset(); };
  search();
  for (Variant* list : {&ids_, &names_, &positions_}) *list = Variant();
  EXPECT_TRUE(frame::nothing_is_held());
}

TEST_P(ReentryDuringSearch, ListsMayBeReplaced) {
  const Variant old_ids = Variant(ids_.to_object()), old_names = Variant(names_.to_object());
  turn_ = [&] {
    if (turns_ != 100) return;
    ids_ = new_list();
    names_ = new_list();
    positions_ = new_list();
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(old_ids), 99);
  EXPECT_EQ(count(old_names), 99);
  EXPECT_EQ(count(ids_), kEntities - 99);
  EXPECT_EQ(count(names_), kEntities - 99);
}

TEST_P(ReentryDuringSearch, ListsThatNobodyElseHoldsMayBeReplaced) {
  turn_ = [&] { ids_ = new_list(), names_ = new_list(), positions_ = new_list(); };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(ids_), 1);
  EXPECT_EQ(text_at(names_, 1), u"old");
}

TEST_P(ReentryDuringSearch, VariablesOfTheListsMayBeCleared) {
  const Variant old_ids = Variant(ids_.to_object()), old_names = Variant(names_.to_object());
  turn_ = [&] {
    if (turns_ != 100) return;
    for (Variant* list : {&ids_, &names_, &positions_}) set_nothing(*list);
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(turns_, kEntities);
  EXPECT_EQ(count(old_ids), 99);
  EXPECT_EQ(count(old_ids), count(old_names));
}

TEST_P(ReentryDuringSearch, ListsMayBeEmptied) {
  turn_ = [&] {
    if (turns_ != 100) return;
    const Variant first(std::int32_t{1});
    for (const Variant* list : {&ids_, &names_})
      while (count(*list) > 0) list->to_object().call(u"Remove", {&first});
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(ids_), kEntities - 99);
  EXPECT_EQ(text_at(ids_, 1), u"e100");
}

TEST_P(ReentryDuringSearch, KeywordsMayBeReplaced) {
  turn_ = [&] {
    if (turns_ != 100) return;
    search_token_ = Variant(u"nm");
    name_token_ = Variant(u"a keyword that no entity has");
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(ids_), 100);
  EXPECT_EQ(text_at(ids_, 100), u"old");
}

TEST_P(ReentryDuringSearch, TheSameObjectMaySearchIntoTheSameLists) {
  turn_ = [&] {
    if (turns_ != 100) return;
    EXPECT_EQ(search(), status::kOk);
    EXPECT_EQ(count(ids_), kEntities);
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(ids_), kEntities);
  EXPECT_EQ(count(names_), kEntities);
  EXPECT_EQ(turns_, 2 * kEntities);
}

TEST_P(ReentryDuringSearch, TheSameObjectMayBeAskedForAnEntity) {
  int found = 0;
  turn_ = [&] {
    const Variant file{String(folder_.name("a.ent"))}, type(u"PIPE");
    Variant entities = new_list();
    if (call(u"GetEntitiesIntoColl", {file.raw(), type.raw(), reference_to(entities)}) ==
        status::kOk)
      found += count(entities);
  };
  EXPECT_EQ(search(), status::kOk);
  expect_all_listed();
  EXPECT_EQ(found, kEntities * kEntities);
}

TEST_P(ReentryDuringSearch, TheSameObjectMayRewriteTheFile) {
  turn_ = [&] {
    if (turns_ != 1) return;
    Variant file{String(folder_.name("a.ent"))};
    const Variant type(u"PIPE"), every(u"");
    EXPECT_EQ(call(u"DeleteEntity", {reference_to(file), type.raw(), every.raw()}), status::kOk);
  };
  EXPECT_EQ(search(), status::kOk);
  expect_all_listed();
  EXPECT_EQ(folder_.read("a.ent").find("PIPE"), std::string::npos);
}

// The file changes under the reader, as no writer of the library would change it.
TEST_P(ReentryDuringSearch, TheFileMayBeOverwritten) {
  constexpr int kMoreThanABuffer = 8000;
  folder_.write("a.ent", entities("old", kMoreThanABuffer));
  turn_ = [&] {
    if (turns_ == 1) folder_.write("a.ent", entities("new", kMoreThanABuffer));
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_EQ(count(ids_), kMoreThanABuffer);
  EXPECT_EQ(text_at(names_, 1), u"old");
  EXPECT_EQ(text_at(names_, kMoreThanABuffer), u"new");
}

TEST_P(ReentryDuringSearch, TheFileMayBeEmptied) {
  folder_.write("a.ent", entities("old", 8000));
  turn_ = [&] {
    if (turns_ == 1) folder_.write("a.ent", "");
  };
  EXPECT_EQ(search(), status::kOk);
  EXPECT_GE(count(ids_), 1);
  EXPECT_LT(count(ids_), 8000);
}

TEST_P(ReentryDuringSearch, TheFileMayBeRemoved) {
  turn_ = [&] { std::filesystem::remove(folder_ / "a.ent"); };
  EXPECT_EQ(search(), status::kOk);
  expect_all_listed();
}

INSTANTIATE_TEST_SUITE_P(Searches, ReentryDuringSearch,
                         ::testing::Values(Search{"List", u"List2EntitieswithSearch"},
                                           Search{"Seek", u"List2EntitieswithSearchandSeek"},
                                           Search{"Parts", u"SubList2EntitieswithSearch"}),
                         [](const auto& search) { return search.param.name; });

}  // namespace
}  // namespace kw::store
