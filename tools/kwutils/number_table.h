// A table of numbers, to be drawn.
#pragma once

#include <string>
#include <vector>

#include "tool/table_rows.h"

namespace kw::tool {

// Lines over one axis. The first column is x, every other one a line; of a single column x is the
// number of the row, from 1.
struct NumberTable {
  std::vector<double> x;
  std::vector<std::vector<double>> lines;
};

// Fails (exit status 3) where a cell is no number or the rows have different numbers of cells.
NumberTable number_table(const std::vector<TableRow>& rows);

struct Extent {
  double low = 0;
  double high = 0;
};

// Of all values; a single value gets some room around it.
Extent extent_of(const std::vector<std::vector<double>>& lines);
inline Extent extent_of(const std::vector<double>& line) {
  return extent_of(std::vector<std::vector<double>>{line});
}

// Where in the extent a value lies, from 0 to 1.
inline double place_in(const Extent& extent, double value) {
  return (value - extent.low) / (extent.high - extent.low);
}

// Values for the marks of an axis: round numbers, about so many.
std::vector<double> axis_marks(const Extent& extent, int about);

// Short and readable.
std::string number_label(double value);

}  // namespace kw::tool
