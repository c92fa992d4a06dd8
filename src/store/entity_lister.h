// Puts the identifiers, names and further items of entities into parallel lists.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "kwutils/collection.h"
#include "kwutils/string.h"
#include "kwutils/variant.h"
#include "store/live_text.h"

namespace kw::store {

// A further item that is listed: its keyword and the list, each of which may be left out.
struct FurtherItem {
  Variant& token;
  Variant& list;

  bool wanted() const noexcept { return !token.is_missing() && !list.is_missing(); }
};

// The caller's variables. They may change whenever the host has its turn, and be one another.
struct ListVariables {
  String& search_token;
  const String& search_value;
  Collection& ids;
  String& name_token;
  Collection& names;
  FurtherItem third;
  FurtherItem fourth;
  Collection* positions;  // null: not wanted
};

// The collection in a variable, kept alive while it is worked with. The variable is never believed
// to hold it still: where the host emptied it, the collection of before goes on being filled.
class LiveCollection {
 public:
  explicit LiveCollection(Collection& variable) : variable_(variable), held_(variable) {}

  const Collection& now() {
    if (variable_.object().pointer() != held_.object().pointer()) held_ = variable_;
    return held_;
  }

 private:
  Collection& variable_;
  Collection held_;
};

class EntityLister {
 public:
  explicit EntityLister(const ListVariables& variables)
      : variables_(variables), ids_(variables.ids), names_(variables.names) {
    if (variables.positions != nullptr) positions_.emplace(*variables.positions);
  }

  // New, empty lists in all variables that were passed.
  static void clear(const ListVariables& variables);

  // Lists the entity of that line, unless its identifier begins with "tmp" (in any case) or the
  // search value is not met. Without an identifier its other items are listed without keys; one
  // whose identifier is listed already adds nothing at all. A list that refuses its item keeps the
  // others from nothing but the position. `position`: of the entity, from 0.
  void take(std::string_view line, std::int64_t position);

 private:
  struct Items {
    std::string_view id, name, third, fourth;
  };

  // Whether taking the items would leave the caller's variables as they are.
  bool keywords_settled() const;
  void add(const Items& items, std::int64_t position);
  bool add_keyed(const Items& items, std::u16string_view id);
  void add_without_keys(const Items& items);

  const ListVariables& variables_;
  LiveCollection ids_;
  LiveCollection names_;
  std::optional<LiveCollection> positions_;
  LiveKeyword id_;
  LiveKeyword name_;
  LiveVariantKeyword third_;
  LiveVariantKeyword fourth_;
  LiveFilter filter_;
};

}  // namespace kw::store
