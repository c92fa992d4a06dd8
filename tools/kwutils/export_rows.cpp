#include "tool/export_rows.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "base/case_map.h"
#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/item_line.h"
#include "tool/notation.h"
#include "tool/order_merger.h"

namespace kw::tool {
namespace {

using View = std::u16string_view;
using Texts = std::vector<std::u16string>;

using Rows = std::vector<std::vector<Item>>;

// The columns as they come to light. id and nm come first, wherever they stand.
class Columns {
 public:
  Columns() {
    number_of(u"id");
    number_of(u"nm");
  }

  void add(const std::vector<Item>& items) {
    std::vector<std::size_t> numbers;
    for (const Item& item : items) numbers.push_back(number_of(item.keyword));
    has_name_ = has_name_ || std::count(numbers.begin(), numbers.end(), kName) != 0;
    for (const auto& [earlier, later] : chosen_before(items))
      if (numbers[earlier] > kName && numbers[later] > kName)
        order_.precede(numbers[earlier], numbers[later]);
  }

  Texts ordered() const {
    Texts columns;
    for (const std::size_t number : order_.order(keywords_.size()))
      if (number != kName || has_name_) columns.push_back(keywords_[number]);
    return columns;
  }

 private:
  static constexpr std::size_t kName = 1;

  std::size_t number_of(const std::u16string& keyword) {
    const auto [place, is_new] = numbers_.emplace(keyword, keywords_.size());
    if (is_new) keywords_.push_back(keyword);
    return place->second;
  }

  Texts keywords_;
  std::unordered_map<std::u16string, std::size_t> numbers_;
  OrderMerger order_;
  bool has_name_ = false;
};

Texts columns_of(const Rows& rows) {
  Columns columns;
  for (const std::vector<Item>& row : rows) columns.add(row);
  return columns.ordered();
}

// The rows as an import of a table with these columns writes them.
Rows written(Rows rows, const Texts& columns) {
  std::unordered_map<View, std::size_t> places;
  for (const std::u16string& column : columns) places.emplace(column, places.size());
  for (std::vector<Item>& row : rows) {
    std::stable_sort(row.begin(), row.end(), [&](const Item& left, const Item& right) {
      return places.at(left.keyword) < places.at(right.keyword);
    });
    ItemLine line = write_items(row);
    if (line.fault.empty()) row = std::move(line.items);
  }
  return rows;
}

// Columns such that what is exported, imported and exported again has the same ones. What stands
// in the file does not always say which item came first, so the columns of the imported rows may
// be other ones: they are followed until they repeat. Of those that do, the first by their text
// are chosen, for they lead to the same ones again.
Texts stable_columns(const Rows& rows) {
  std::vector<Texts> seen;
  for (Texts columns = columns_of(rows);; columns = columns_of(written(rows, columns))) {
    const auto before = std::find(seen.begin(), seen.end(), columns);
    if (before != seen.end()) return *std::min_element(before, seen.end());
    seen.push_back(columns);
  }
}

// What keeps the items from being imported again, or "".
std::string row_fault(const std::vector<Item>& items) {
  if (items.empty() || items.front().keyword != u"id") return "it has no identifier";
  const std::string fault = identifier_fault(items.front().value);
  return fault.empty() ? write_items(items).fault : "its identifier: " + fault;
}

class Exporter {
 public:
  explicit Exporter(const std::string& type) : type_(type) {}

  void add(View entity) {
    ++number_;
    std::vector<Item> items = items_of(entity);
    if (count_words(entity) != 2 * items.size()) ++with_other_words_;
    if (entity.find(u'\r') != entity.npos) ++with_lines_;
    drop_impossible_keywords(items);
    put_identifier_first(items);
    if (const std::string fault = row_fault(items); !fault.empty()) return leave_out(items, fault);
    if (!ids_.insert(upper(items.front().value)).second)
      return leave_out(items, "an earlier one has the same identifier");
    result_.rows.push_back(std::move(items));
  }

  ExportedRows finish() {
    result_.columns = stable_columns(result_.rows);
    remark(with_lines_, "further lines or a table");
    remark(with_other_words_, "words that no look-up finds as an item");
    return std::move(result_);
  }

 private:
  static void drop_impossible_keywords(std::vector<Item>& items) {
    items.erase(
        std::remove_if(items.begin(), items.end(),
                       [](const Item& item) { return !keyword_fault(item.keyword).empty(); }),
        items.end());
  }

  static void put_identifier_first(std::vector<Item>& items) {
    const auto id = std::find_if(items.begin(), items.end(),
                                 [](const Item& item) { return item.keyword == u"id"; });
    if (id != items.end()) std::rotate(items.begin(), id, id + 1);
  }

  void leave_out(const std::vector<Item>& items, const std::string& why) {
    std::string what = type_ + " number " + std::to_string(number_);
    if (!items.empty() && items.front().keyword == u"id")
      what += " (" + to_utf8(items.front().value) + ")";
    result_.remarks.push_back(what + " is left out: " + why);
  }

  void remark(std::size_t count, const char* what) {
    if (count != 0)
      result_.remarks.push_back(std::to_string(count) + " of " + type_ + " hold " + what +
                                ", which are left out");
  }

  const std::string& type_;
  std::unordered_set<std::u16string> ids_;
  std::size_t number_ = 0;
  std::size_t with_lines_ = 0;
  std::size_t with_other_words_ = 0;
  ExportedRows result_;
};

}  // namespace

ExportedRows make_rows(const Collection& entities, const std::string& type, ProgressBar* progress) {
  Exporter exporter(type);
  Steps steps(progress, type, static_cast<std::size_t>(entities.count()));
  for_each_text(entities, [&](View entity) {
    exporter.add(entity);
    steps.step();
  });
  return exporter.finish();
}

}  // namespace kw::tool
