// clsParse: tables.
#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "kwutils/clsParse.h"
#include "kwutils/error.h"
#include "parse/word_walk.h"

namespace kw {
namespace {

using parse::Item;
using parse::WordWalk;

constexpr std::u16string_view kOpener = u"TBLE";
constexpr std::u16string_view kCloser = u"tble";
constexpr std::u16string_view kLineEnd = u"\r\n";

// Numbers rows on from the caller's count, in an array from 1 on that grows by a step when a row
// lies past its upper bound.
class RowNumbers {
 public:
  RowNumbers(std::int32_t& last, std::int32_t step) noexcept : last_(last), step_(step) {}

  // Error 9 when the array has no place for the next row after one step, 6 when there is no number
  // for it.
  void take_next() {
    if (last_ == std::numeric_limits<std::int32_t>::max()) throw Error(ErrorNumber::overflow);
    ++last_;
    if (last_ > upper_) upper_ += step_;
    if (last_ < 1 || last_ > upper_) throw Error(ErrorNumber::subscript_out_of_range);
  }
  std::int32_t upper() const noexcept { return upper_; }

 private:
  std::int32_t& last_;
  std::int32_t step_;
  std::int32_t upper_ = 1;
};

// Reads to the end of the table and gives its rows.
std::vector<String> rows_of(WordWalk& walk, RowNumbers& numbers) {
  std::vector<String> rows;
  std::u16string row;
  bool inside = false;
  for (Item<char16_t> word; walk.next(word);) {
    if (!inside) {
      inside = word.text == kOpener;
    } else if (word.text == kCloser) {
      break;
    } else if (word.text == u"<") {
      numbers.take_next();
      rows.push_back(String::concat(row, u"< ", kLineEnd));
      row.clear();
    } else {
      row.append(word.text) += u' ';
    }
  }
  return rows;
}

// The rows as the last elements of an array from 1 to `upper`.
std::vector<String> elements_of(std::vector<String> rows, std::int32_t upper) {
  const std::size_t before = static_cast<std::size_t>(upper) - rows.size();
  if (before == 0) return rows;
  std::vector<String> elements(before);
  std::move(rows.begin(), rows.end(), std::back_inserter(elements));
  return elements;
}

}  // namespace

String clsParse::ParseTable(String& Buf) const {
  std::u16string_view rest = Buf;
  std::u16string_view table;
  std::size_t skipped = 0;
  while (!rest.empty()) {
    if (!parse::trim(parse::take_line(rest)).starts_with(kOpener)) continue;
    const std::size_t end = find_text(rest, kCloser);
    if (end != kNotFound) table = rest.substr(0, end);
    skipped = end == kNotFound ? kCloser.size() - 1 : end + kCloser.size();
    break;
  }
  if (table.ends_with(kLineEnd)) table.remove_suffix(kLineEnd.size());
  String result(table);
  Buf = String(parse::tail_from(rest, skipped));
  return result;
}

std::int32_t clsParse::ParseTableList(String& Entity, Array<String>& Table,
                                      std::int32_t& numRows) const {
  Table.redim(1, 1);
  if (!parse::contains(Entity.view(), kCloser)) return numRows = 0;
  WordWalk walk(Entity);
  RowNumbers numbers(numRows, table_growth_step_);
  std::vector<String> rows;
  try {
    rows = rows_of(walk, numbers);
  } catch (const Error&) {
    Entity = String(walk.lines());
    Table.redim(1, numbers.upper());
    throw;
  }
  Entity = walk.rest();
  if (numRows < 1) throw Error(ErrorNumber::subscript_out_of_range);
  Table.publish(1, elements_of(std::move(rows), std::min(numbers.upper(), numRows)));
  return numRows;
}

}  // namespace kw
