#include "store/entity_lister.h"

#include "base/case_map.h"
#include "base/code_page.h"
#include "kwutils/error.h"
#include "store/text.h"

namespace kw::store {

namespace {

bool is_temporary(std::string_view id) noexcept {
  constexpr std::u16string_view kPrefix = u"tmp";
  if (id.size() < kPrefix.size()) return false;
  for (std::size_t i = 0; i < kPrefix.size(); ++i)
    if (to_lower(decode(static_cast<unsigned char>(id[i]))) != kPrefix[i]) return false;
  return true;
}

// The answers of a list that may be anything: whether it took the item.
template <class Add>
bool added(Add&& add) {
  try {
    add();
    return true;
  } catch (const Error&) {
    return false;
  }
}

Collection list_in(const Variant& variable) { return Collection(variable.to_object()); }

}  // namespace

void EntityLister::clear(const ListVariables& variables) {
  variables.ids = Collection::create();
  variables.names = Collection::create();
  for (const FurtherItem* item : {&variables.third, &variables.fourth})
    if (!item->list.is_missing()) item->list.store(Collection::create().object());
  if (variables.positions != nullptr) *variables.positions = Collection::create();
}

void EntityLister::take(std::string_view line, std::int64_t position) {
  // Where the keywords are settled, looking at the items changes nothing: the cheaper question
  // first.
  if (keywords_settled() && !filter_.passes(line, variables_.search_value)) return;
  Items items;
  items.id = id_.of(variables_.search_token).value_on(line);
  if (is_temporary(items.id)) return;
  items.name = name_.of(variables_.name_token).value_on(line);
  const FurtherItem& third = variables_.third;
  if (third.wanted()) items.third = third_.of(third.token).value_on(line);
  const FurtherItem& fourth = variables_.fourth;
  if (fourth.wanted()) items.fourth = fourth_.of(fourth.token).value_on(line);
  if (filter_.passes(line, variables_.search_value)) add(items, position);
}

bool EntityLister::keywords_settled() const {
  return id_.settled(variables_.search_token) && name_.settled(variables_.name_token) &&
         !variables_.third.wanted() && !variables_.fourth.wanted();
}

void EntityLister::add(const Items& items, std::int64_t position) {
  if (items.id.empty()) return add_without_keys(items);
  const String id = text_of(items.id);
  if (!add_keyed(items, id) || !positions_ || position >= INT32_MAX) return;
  added([&] { positions_->now().add(Variant(static_cast<std::int32_t>(position + 1)), id); });
}

// Whether every list took its item.
bool EntityLister::add_keyed(const Items& items, std::u16string_view id) {
  if (!added([&] { ids_.now().add(text_of(items.id), id); })) return false;
  bool all = added([&] { names_.now().add(text_of(items.name), id); });
  const FurtherItem& third = variables_.third;
  if (third.wanted() && !added([&] { list_in(third.list).add(text_of(items.third), id); }))
    all = false;
  const FurtherItem& fourth = variables_.fourth;
  if (fourth.wanted() && !added([&] { list_in(fourth.list).add(text_of(items.fourth), id); }))
    all = false;
  return all;
}

void EntityLister::add_without_keys(const Items& items) {
  added([&] { names_.now().add(text_of(items.name)); });
  const FurtherItem& third = variables_.third;
  if (third.wanted()) added([&] { list_in(third.list).add(text_of(items.third)); });
  const FurtherItem& fourth = variables_.fourth;
  if (fourth.wanted()) added([&] { list_in(fourth.list).add(text_of(items.fourth)); });
}

}  // namespace kw::store
