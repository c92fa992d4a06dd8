#include "tool/number_table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "base/numeric_text.h"
#include "base/unicode.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

double number_in(const std::u16string& cell, std::size_t row) {
  const auto number = parse_number(cell);
  if (!number || !std::isfinite(*number))
    fail("the table cannot be drawn: " + in_quotes(to_utf8(cell)) + " in row " +
         std::to_string(row) + " is no number");
  return *number;
}

// 1, 2 or 5 times a power of ten.
double round_step(double step) {
  const double power = std::pow(10.0, std::floor(std::log10(step)));
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * power >= step * (1 - 1e-9)) return factor * power;
  return 10 * power;
}

}  // namespace

NumberTable number_table(const std::vector<TableRow>& rows) {
  if (rows.empty()) fail("the table cannot be drawn: it has no rows");
  NumberTable table;
  const std::size_t width = rows.front().size();
  if (width == 0) fail("the table cannot be drawn: row 1 is empty");
  table.lines.resize(width == 1 ? 1 : width - 1);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].size() != width)
      fail("the table cannot be drawn: row " + std::to_string(row + 1) +
           " has another number of cells");
    const std::size_t first_line = width == 1 ? 0 : 1;
    table.x.push_back(width == 1 ? static_cast<double>(row + 1) : number_in(rows[row][0], row + 1));
    for (std::size_t i = first_line; i < width; ++i)
      table.lines[i - first_line].push_back(number_in(rows[row][i], row + 1));
  }
  return table;
}

Extent extent_of(const std::vector<std::vector<double>>& lines) {
  Extent extent{lines.front().front(), lines.front().front()};
  for (const std::vector<double>& line : lines)
    for (const double value : line) {
      extent.low = std::min(extent.low, value);
      extent.high = std::max(extent.high, value);
    }
  if (extent.high > extent.low) return extent;
  const double room = extent.low == 0 ? 1 : std::fabs(extent.low) / 2;
  return {extent.low - room, extent.low + room};
}

std::vector<double> axis_marks(const Extent& extent, int about) {
  const double step = round_step((extent.high - extent.low) / about);
  std::vector<double> marks;
  for (double n = std::ceil(extent.low / step - 1e-9); n * step <= extent.high + step * 1e-9; ++n)
    marks.push_back(n * step == 0 ? 0 : n * step);
  return marks;
}

std::string number_label(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

}  // namespace kw::tool
