#include <algorithm>
#include <nlohmann/json.hpp>

#include "base/unicode.h"
#include "tool/failure.h"
#include "tool/order_merger.h"
#include "tool/source_table.h"

namespace kw::tool {
namespace {

using Json = nlohmann::json;

// Takes the values as they are read, numbers as they are spelt.
class RowsHandler : public nlohmann::json_sax<Json> {
 public:
  RowsHandler(SourceTable& table, std::string_view file) : table_(table), file_(file) {}

  bool null() override { return value(std::nullopt); }
  bool boolean(bool truth) override { return value(truth ? u"true" : u"false"); }
  bool number_integer(number_integer_t number) override {
    return value(from_utf8(std::to_string(number)));
  }
  bool number_unsigned(number_unsigned_t number) override {
    return value(from_utf8(std::to_string(number)));
  }
  bool number_float(number_float_t, const string_t& spelling) override {
    return value(from_utf8(spelling));
  }
  bool string(string_t& text) override { return value(from_utf8(text)); }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override {
    ++depth_;
    if (begins_row()) start_row(true);
    if (begins_value()) spoil_value("it holds an object");
    return true;
  }
  bool end_object() override {
    --depth_;
    return true;
  }
  bool start_array(std::size_t) override {
    ++depth_;
    if (rows_depth_ == 0 && depth_ <= 2)
      start_rows();
    else if (depth_ == 2 && rows_depth_ == 2)
      fail_on("it has more than one list");
    else if (begins_row())
      start_row(false);
    else if (begins_value())
      spoil_value("it holds a list");
    return true;
  }
  bool end_array() override {
    if (depth_ == rows_depth_) in_rows_ = false;
    --depth_;
    return true;
  }
  bool key(string_t& name) override {
    if (!in_object_row()) return true;
    const std::size_t before = column_;
    column_ = column_of(from_utf8(name));
    if (before != kNoColumn && before != column_) order_.precede(before, column_);
    return true;
  }
  bool parse_error(std::size_t, const std::string&,
                   const nlohmann::detail::exception& error) override {
    const std::string_view text = error.what();
    fail_on(std::string(text.substr(std::min(text.find("] ") + 2, text.size()))));
  }

  // Puts the columns into the order that the rows agree on.
  void order_columns() {
    const std::vector<std::size_t> order = order_.order(table_.columns.size());
    std::vector<std::u16string> columns;
    for (const std::size_t column : order) columns.push_back(std::move(table_.columns[column]));
    table_.columns = std::move(columns);
    for (SourceRow& row : table_.rows) reorder(row, order);
  }

  bool found_rows() const { return rows_depth_ != 0; }

  [[noreturn]] void fail_on(const std::string& why) const {
    fail("cannot read " + in_quotes(file_) + ": " + why);
  }

 private:
  // Of an object or list that has just begun.
  bool begins_row() const { return in_rows_ && depth_ == rows_depth_ + 1; }
  bool begins_value() const { return in_rows_ && row_is_object_ && depth_ == rows_depth_ + 2; }
  bool in_object_row() const { return in_rows_ && row_is_object_ && depth_ == rows_depth_ + 1; }

  void start_rows() {
    rows_depth_ = depth_;
    in_rows_ = true;
  }

  void start_row(bool is_object) {
    table_.rows.emplace_back();
    table_.rows.back().number = table_.rows.size();
    row_is_object_ = is_object;
    column_ = kNoColumn;
    if (!is_object) table_.rows.back().fault = "it is no object";
  }

  void spoil_value(const char* why) {
    std::string& fault = table_.rows.back().fault;
    if (fault.empty()) fault = to_utf8(table_.columns[column_]) + ": " + why;
  }

  std::size_t column_of(std::u16string name) {
    const auto found = std::find(table_.columns.begin(), table_.columns.end(), name);
    const auto position = static_cast<std::size_t>(found - table_.columns.begin());
    if (found == table_.columns.end()) table_.columns.push_back(std::move(name));
    return position;
  }

  bool value(std::optional<std::u16string> text) {
    if (in_rows_ && depth_ == rows_depth_)
      start_row(false);
    else if (in_object_row())
      put(std::move(text));
    return true;
  }

  void put(std::optional<std::u16string> text) {
    auto& values = table_.rows.back().values;
    if (values.size() <= column_) values.resize(column_ + 1);
    if (values[column_]) spoil_value("it stands there twice");
    values[column_] = std::move(text);
  }

  static void reorder(SourceRow& row, const std::vector<std::size_t>& order) {
    std::vector<std::optional<std::u16string>> values(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
      if (order[i] < row.values.size()) values[i] = std::move(row.values[order[i]]);
    row.values = std::move(values);
  }

  static constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

  SourceTable& table_;
  std::string_view file_;
  OrderMerger order_;
  std::size_t depth_ = 0;
  std::size_t rows_depth_ = 0;  // of the list of rows: 1 or 2; 0 before it begins
  bool in_rows_ = false;
  bool row_is_object_ = false;
  std::size_t column_ = kNoColumn;
};

}  // namespace

SourceTable read_json(std::string_view text, std::string_view file) {
  SourceTable table;
  RowsHandler handler(table, file);
  Json::sax_parse(text, &handler);
  if (!handler.found_rows()) handler.fail_on("it holds no list of objects");
  handler.order_columns();
  return table;
}

}  // namespace kw::tool
